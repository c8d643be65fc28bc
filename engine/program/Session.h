// How an operation of a program talks to whoever started it.
#pragma once

#include "drive/Burn.h"
#include "program/Output.h"
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

    /// What a burn is done with; notes are lines on standard output.
    drive::BurnOptions burnOptions(bool verify);

    /// One sentence on standard output.
    void say(const std::string &line) { m_output.tell(line + '\n'); }

    /// Tells the first stop signal that comes.
    Stop stop() const { return m_signals.stop(); }

private:
    StopSignals m_signals;
    Output m_output;
    report::ProgressPacer m_pacer;
};

} // namespace engine::program
