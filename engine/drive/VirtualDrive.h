// A drive without hardware: a folder that stands for a recorder and the disc in it.
#pragma once

#include "drive/Drive.h"

#include <string>

namespace engine::drive {

class VirtualDrive final : public Drive {
public:
    /// `folder` is the recorder's folder.
    explicit VirtualDrive(std::string folder);

    report::DriveRecord record() const override;
    bool isVirtual() const override { return true; }
    Result<std::unique_ptr<Lease>> acquire(Purpose purpose) override;
    Result<void> eject() override;
    Result<void> close() override;
    Result<void> insert(report::MediumKind kind) override;
    Result<std::string> folder() const override { return m_folder; }

private:
    std::string m_folder;
};

} // namespace engine::drive
