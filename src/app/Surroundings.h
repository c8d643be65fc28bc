// What the program needs of the machine it runs on.
#pragma once

#include <QString>

#include <functional>
#include <memory>

class DriveEvents;
class Questions;

/// What the controller needs of the machine around it. The defaults are a person's machine; tests
/// and the batch form put their own in.
struct Surroundings {
    QString drutil; ///< full path of the disc utility
    QString hdiutil; ///< full path of the disk-image utility
    QString dvdauthor; ///< full path of the program that makes titles; need not be there
    QString resources; ///< the folder of the application's own resources
    QString guide; ///< full path of the user guide; where there is no such file, the web has it
    int probeLimit = 60'000; ///< ms after which a probe that gives no answer is ended
    int stagingPoll = 60'000; ///< ms between two measurements of a folder that is being copied
    int copyEndLimit = 10'000; ///< ms that a folder copy has to stop when the disc is written
    int authoringSilence = 300'000; ///< ms after which a dvdauthor that tells nothing is ended
    bool stagingUntilCopied = false; ///< goes on when a folder is copied, without waiting for the next look
    bool remembersWindow = true; ///< its size, place and columns; somebody sees it
    Questions *questions = nullptr; ///< answers alerts and panels; not owned
    std::function<std::unique_ptr<DriveEvents>()>
        driveEvents; ///< of drives that come and go; empty: nobody tells
    std::function<void(int)> exitProcess; ///< ends the process at once with this status

    /// The machine as it is: tools at their usual places, else beside the program.
    static Surroundings ofThisMachine(Questions *questions);
};
