// The program as others on the session's bus see it.
#pragma once

#include "desktop/Bus.h"

#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace desktop {

class Opening;
struct Request;

/// The three calls of org.freedesktop.Application, from the Desktop Entry Specification's D-Bus activation. Whoever is on
/// the session's bus can make them, so that their arguments are foreign: only files of this computer, not too many and with
/// paths of a sensible length; nothing that is called burns a disc or answers a question. A call with wrong arguments gets
/// an error and does nothing. Where there is no bus, or another Corvalis has the name, nobody calls; the name is this one's
/// once the other has ended.
class ApplicationService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    /// `opening` outlives this. Asks for the name from the event loop; never waits.
    explicit ApplicationService(Opening *opening);
    ~ApplicationService() override;

    static constexpr qsizetype mostFiles = 10'000;
    static constexpr qsizetype longestAddress = 16'384; ///< characters

    static QString objectPath();

public Q_SLOTS:
    Q_SCRIPTABLE void Activate(const QVariantMap &platformData);
    Q_SCRIPTABLE void Open(const QStringList &addresses, const QVariantMap &platformData);
    Q_SCRIPTABLE void ActivateAction(
        const QString &action, const QVariantList &parameter, const QVariantMap &platformData);

private:
    void takeName(const QDBusConnection &bus);
    void pass(const Request &request, const QVariantMap &platformData);

    Opening *const m_opening;
    QDBusConnection m_bus{ QString() };
};

} // namespace desktop
