#include "drive/WriteFailure.h"

#include "base/Words.h"

#include <cerrno>
#include <csignal>

namespace engine::drive {

namespace {

std::string withoutFullStop(std::string text)
{
    while (!text.empty()
        && (text.back() == '.' || text.back() == ' ' || text.back() == ',' || text.back() == '\n'))
        text.pop_back();
    return text;
}

std::string stateSentence(const std::string &driveName, Left left)
{
    switch (left) {
    case Left::asBefore:
        return " The disc in " + driveName + " is as it was.";
    case Left::blank:
        return " The disc in " + driveName + " is still blank.";
    case Left::closed:
        return " The disc in " + driveName + " is written and closed.";
    case Left::spoilt:
        return " The disc in " + driveName + " is spoilt.";
    case Left::overwritable:
        return " What the disc in " + driveName + " holds is incomplete; it can be written again.";
    case Left::erasable:
        break;
    }
    return " The disc in " + driveName + " has to be erased before it can be used.";
}

} // namespace

Left leftOf(const Medium &before, bool touched)
{
    if (!touched && before.state == MediumState::blank)
        return Left::blank;
    if (before.rewriting == Rewriting::overwrite)
        return Left::overwritable;
    return canErase(before) ? Left::erasable : Left::spoilt;
}

std::string inBrackets(const LibburnMessage &message)
{
    const std::string text = withoutFullStop(message.text);
    return text.empty() ? text : " (" + text + ")";
}

Error withState(const Error &error, const std::string &driveName, Left left)
{
    const bool stopped = error.exit == Exit::interrupted || error.exit == Exit::terminated;
    return stopped ? error : Error{ error.exit, error.message + stateSentence(driveName, left) };
}

Error writeFailure(
    const LibburnDrive::Outcome &outcome, const Result<void> &source, const std::string &driveName, Left left)
{
    const std::string state = stateSentence(driveName, left);
    if (outcome.signal != 0)
        return stoppedBy(outcome.signal, "Stopped." + state);
    if (!source)
        return { source.error().exit, withoutFullStop(source.error().message) + "." + state };
    if (outcome.gone)
        return { Exit::failed,
            "The connection to " + driveName + " was lost during the write; check its cable." + state };
    const int failure = outcome.message.failure;
    if (failure == ENOSPC || failure == EDQUOT || failure == EFBIG)
        return { Exit::failed,
            "The file system that holds " + driveName + " takes no more: " + reasonAndAdvice(failure) + "."
                + state };
    return { Exit::failed,
        "The write to " + driveName + " failed" + inBrackets(outcome.message) + "." + state };
}

} // namespace engine::drive
