// A drive of the machine, through libburn and the kernel's device node.
#pragma once

#include "drive/Drive.h"
#include "drive/PhysicalDrives.h"

#include <string>

namespace engine::drive {

class PhysicalDrive final : public Drive {
public:
    explicit PhysicalDrive(PhysicalRecord record);

    DriveRecord record() const override { return m_record.record; }
    bool isVirtual() const override { return false; }
    Result<std::unique_ptr<Lease>> acquire(Purpose purpose) override;
    Result<void> eject() override;
    Result<void> close() override;
    Result<void> insert(MediumKind kind) override;
    Result<std::string> folder() const override;

private:
    /// An error when a stop signal has come.
    Result<void> checkMayMove() const;

    PhysicalRecord m_record;
};

} // namespace engine::drive
