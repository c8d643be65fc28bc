#include "program/Session.h"

#include "program/Program.h"

namespace engine::program {

drive::Control Session::control()
{
    return { [this](const report::Progress &progress, unsigned unitBytes) {
                if (const auto line = m_pacer.next(progress, unitBytes, report::ProgressPacer::Clock::now()))
                    print(*line + '\n');
            },
        [this] { return caught(); } };
}

drive::BurnOptions Session::burnOptions(bool verify)
{
    return { verify, control(), [](const std::string &line) { print(line + '\n'); } };
}

} // namespace engine::program
