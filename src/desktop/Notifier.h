// A message of the desktop that something is done.
#pragma once

#include <QObject>
#include <QString>

namespace desktop {

/// One notification at a time, by org.freedesktop.Notifications. GUI thread; never waits.
class Notifier : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Shows plain texts, in the place of the one that is up. `button` is the title of what calls the program.
    void show(const QString &heading, const QString &text, const QString &button);
    /// Takes away what is up, as it has been seen.
    void withdraw();

Q_SIGNALS:
    /// The person chose the notification or its button. `token` lets a window come to the front; may be empty.
    void called(const QString &token);

private Q_SLOTS:
    void onActionInvoked(uint id, const QString &action);
    void onActivationToken(uint id, const QString &token);
    void onNotificationClosed(uint id, uint reason);

private:
    void listen();

    uint m_id = 0; ///< of the notification that is up; 0: none
    bool m_wanted = false; ///< shown and not withdrawn
    bool m_listens = false;
    QString m_token; ///< comes just before the choice that it belongs to
};

} // namespace desktop
