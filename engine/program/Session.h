// How an operation of a program talks to whoever started it.
#pragma once

#include "drive/Burn.h"
#include "program/Output.h"
#include "program/SpeedOption.h"
#include "report/ProgressText.h"

#include <string>

namespace engine::program {

/// Progress lines on standard output and the stop signals, for the time of one operation. A reader who reads no
/// more holds up its end only, and that until a stop signal. One at a time.
class Session {
public:
    Session();

    /// Valid as long as the session lives.
    drive::Control control();

    /// What a burn is done with; what is done next is said on standard output.
    drive::BurnOptions burnOptions(bool verify, const ToldWish &speed);

    /// One sentence on standard output.
    void say(const std::string &line) { m_output.tell(line + '\n'); }

    /// The first line of a burn: which drive has the disc.
    void sayDrive(const drive::Drive &drive);

    /// Something is left out or was changed, and the work goes on: one line on standard error, "note: " and `sentence`.
    void note(const std::string &sentence);

    /// Tells the first stop signal that comes.
    Stop stop() const { return m_signals.stop(); }

private:
    void saySpeed(int speed, Family family, SpeedWish wish);

    StopSignals m_signals;
    Output m_output;
    Output m_errors;
    bool m_together; ///< both outputs are one file: lines keep their order in one queue
    report::ProgressPacer m_pacer;
};

} // namespace engine::program
