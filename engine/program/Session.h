// How an operation of a program talks to whoever started it.
#pragma once

#include "drive/Burn.h"
#include "report/ProgressText.h"

namespace engine::program {

/// Progress lines on standard output and the stop signals, for the time of one operation. One at a time.
class Session {
public:
    /// Valid as long as the session lives.
    drive::Control control();

    /// What a burn is done with; notes are lines on standard output.
    drive::BurnOptions burnOptions(bool verify);

    /// The first stop signal that came, or 0.
    int caught() const { return m_signals.caught(); }

private:
    drive::StopSignals m_signals;
    report::ProgressPacer m_pacer;
};

} // namespace engine::program
