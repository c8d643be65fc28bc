// The disc behind a mount point, open to be read as a whole.
#pragma once

#include "base/Fd.h"
#include "base/Result.h"
#include "image/DiscCopy.h"

#include <memory>
#include <optional>
#include <string>

namespace engine::drive {

/// An optical disc, open for reading. Not thread-safe.
class MountedDisc {
public:
    /// The disc that is mounted as a whole at `folder`; null where `folder` is anything else, be it a folder below, and where
    /// the person may not read the device. Errors: the device cannot be opened, and a video disc whose content is scrambled.
    static Result<std::unique_ptr<MountedDisc>> at(const std::string &folder);

    /// Reads through this object, which has to stay.
    image::DiscSource source();

private:
    MountedDisc(std::string device, Fd file);

    std::string m_device;
    Fd m_file;
    int m_failure = 0; ///< errno of the last read that failed
};

} // namespace engine::drive
