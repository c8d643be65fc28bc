// Drives that come and go while the program runs.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>

/// What tells of drives that come and go. GUI thread only.
class DriveEvents {
public:
    DriveEvents() = default;
    DriveEvents(const DriveEvents &) = delete;
    DriveEvents &operator=(const DriveEvents &) = delete;
    virtual ~DriveEvents();

    /// A descriptor that can be read when something has happened; valid as long as this object.
    virtual int descriptor() const = 0;
    /// Takes one thing that has happened, without waiting. True: it was an optical drive that came or went.
    virtual bool take() = 0;

    /// Those of udev; null where they cannot be had.
    static std::unique_ptr<DriveEvents> ofUdev();
};

/// Tells once when drives have come or gone: one that is plugged in makes several events within a moment.
class DriveWatch : public QObject {
    Q_OBJECT
public:
    DriveWatch(std::unique_ptr<DriveEvents> events, QObject *parent);

Q_SIGNALS:
    void changed();

private:
    const std::unique_ptr<DriveEvents> m_events;
    QSocketNotifier m_notifier;
    QTimer m_settled;
};
