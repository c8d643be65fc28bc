#include "drives/DriveWatch.h"

#include <cstring>
#include <libudev.h>

namespace {

template <auto unref>
struct Unref {
    template <class Object>
    void operator()(Object *object) const
    {
        unref(object);
    }
};
using Udev = std::unique_ptr<udev, Unref<udev_unref>>;
using Monitor = std::unique_ptr<udev_monitor, Unref<udev_monitor_unref>>;
using Device = std::unique_ptr<udev_device, Unref<udev_device_unref>>;

class UdevEvents : public DriveEvents {
public:
    explicit UdevEvents(Monitor monitor)
        : m_monitor(std::move(monitor))
    {
    }

    int descriptor() const override { return udev_monitor_get_fd(m_monitor.get()); }

    bool take() override
    {
        const Device device(udev_monitor_receive_device(m_monitor.get()));
        if (!device)
            return false;
        const char *action = udev_device_get_action(device.get());
        const char *name = udev_device_get_sysname(device.get());
        // A changed disc is a "change" of the drive, and no business of ours.
        return action && name && std::strncmp(name, "sr", 2) == 0
            && (std::strcmp(action, "add") == 0 || std::strcmp(action, "remove") == 0);
    }

private:
    Monitor m_monitor; // holds a reference of its own to the library
};

} // namespace

DriveEvents::~DriveEvents() = default;

std::unique_ptr<DriveEvents> DriveEvents::ofUdev()
{
    const Udev library(udev_new());
    // "udev": after its rules have run, so that its record of the drive is there when the drives are listed.
    Monitor monitor(library ? udev_monitor_new_from_netlink(library.get(), "udev") : nullptr);
    if (!monitor || udev_monitor_filter_add_match_subsystem_devtype(monitor.get(), "block", nullptr) < 0
        || udev_monitor_enable_receiving(monitor.get()) < 0)
        return nullptr;
    return std::make_unique<UdevEvents>(std::move(monitor));
}

DriveWatch::DriveWatch(std::unique_ptr<DriveEvents> events, QObject *parent)
    : QObject(parent)
    , m_events(std::move(events))
    , m_notifier(m_events->descriptor(), QSocketNotifier::Read)
{
    constexpr int moment = 500;
    m_settled.setSingleShot(true);
    m_settled.setInterval(moment);
    connect(&m_settled, &QTimer::timeout, this, &DriveWatch::changed);
    connect(&m_notifier, &QSocketNotifier::activated, this, [this] {
        if (m_events->take())
            m_settled.start();
    });
}
