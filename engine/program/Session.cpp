#include "program/Session.h"

#include <unistd.h>

namespace engine::program {

Session::Session()
    : m_output(STDOUT_FILENO, m_signals.stop())
{
}

drive::Control Session::control()
{
    return { [this](const Progress &progress, unsigned unitBytes) {
                if (const auto line = m_pacer.next(progress, unitBytes, report::ProgressPacer::Clock::now()))
                    m_output.offer(*line + '\n');
            },
        stop() };
}

drive::BurnOptions Session::burnOptions(bool verify)
{
    return { verify, control(), [this](const std::string &line) { say(line); } };
}

} // namespace engine::program
