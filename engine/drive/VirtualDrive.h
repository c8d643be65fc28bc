// A drive without hardware: a folder that stands for a recorder and the disc in it.
#pragma once

#include "drive/Drive.h"

#include <functional>
#include <string>

namespace engine::drive {

class RecorderFolder;
struct RecorderState;

class VirtualDrive final : public Drive {
public:
    /// `folder` is the recorder's folder.
    explicit VirtualDrive(std::string folder);

    DriveRecord record() const override;
    bool isVirtual() const override { return true; }
    Result<std::unique_ptr<Lease>> acquire(Purpose purpose) override;
    Result<void> eject() override;
    Result<void> close() override;
    Result<void> insert(MediumKind kind) override;
    Result<std::string> folder() const override { return m_folder; }

private:
    /// Does `change` with the recorder's folder locked and its state read.
    Result<void> change(const std::function<Result<void>(const RecorderFolder &, RecorderState)> &change);

    std::string m_folder;
};

} // namespace engine::drive
