#include "ui/SystemAppearance.h"

#include "desktop/Bus.h"
#include "ui/DesktopColours.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPalette>
#include <QPointer>
#include <QSettings>
#include <QStandardPaths>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const auto portalService = u"org.freedesktop.portal.Desktop"_s;
const auto portalPath = u"/org/freedesktop/portal/desktop"_s;
const auto portalInterface = u"org.freedesktop.portal.Settings"_s;
const auto appearanceNamespace = u"org.freedesktop.appearance"_s;
const auto colourSchemeKey = u"color-scheme"_s;

bool isDarkPalette(const QPalette &palette)
{
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

} // namespace

SystemAppearance &SystemAppearance::instance()
{
    static QPointer<SystemAppearance> only;
    if (!only)
        only = new SystemAppearance(QCoreApplication::instance());
    return *only;
}

SystemAppearance::SystemAppearance(QObject *parent)
    : QObject(parent)
{
    m_lastAnswer = isDark();
    QCoreApplication::instance()->installEventFilter(this);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &SystemAppearance::watchFile);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &SystemAppearance::watchFile);
    watchFile();
    desktop::withBus(desktop::Bus::Session, this, [this](const QDBusConnection &bus) {
        if (bus.isConnected())
            askPortal(bus);
    });
}

bool SystemAppearance::isDark() const
{
    if (const auto stated = statedDark())
        return *stated;
    return isDarkPalette(m_toolkits.value_or(QGuiApplication::palette()));
}

std::optional<bool> SystemAppearance::statedDark() const
{
    if (const auto &style = interfaceStyle())
        return *style == "Dark"_L1;
    return m_portal;
}

void SystemAppearance::leadPalette()
{
    m_leadsPalette = true;
    givePalette();
}

/// Tells the whole application, which tells this object, too.
void SystemAppearance::givePalette()
{
    if (!m_leadsPalette || std::exchange(m_givesPalette, true))
        return;
    const auto stated = statedDark();
    const QPalette toolkits = m_toolkits.value_or(QGuiApplication::palette());
    if (stated && *stated != isDarkPalette(toolkits)) {
        m_toolkits = toolkits;
        QGuiApplication::setPalette(desktopColours(*stated));
    } else if (m_toolkits) {
        m_toolkits.reset();
        QGuiApplication::setPalette(toolkits);
    }
    m_givesPalette = false;
}

QString SystemAppearance::globalPreferencesFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + "/GlobalPreferences.conf"_L1;
}

/// Asked for every cell of a table, so the file is read again only when it changed.
const std::optional<QString> &SystemAppearance::interfaceStyle() const
{
    const QFileInfo file(globalPreferencesFile());
    if (file.lastModified() != m_file.modified || file.size() != m_file.size) {
        m_file = { file.lastModified(), file.size(), {} };
        const auto style = QSettings(file.filePath(), QSettings::IniFormat).value("AppleInterfaceStyle"_L1);
        if (style.isValid())
            m_file.interfaceStyle = style.toString();
    }
    return m_file.interfaceStyle;
}

void SystemAppearance::watchFile()
{
    // The folder tells that the file comes and goes or is replaced, the file that it is written.
    const QFileInfo file(globalPreferencesFile());
    for (const QString &path : { file.path(), file.filePath() })
        if (QFileInfo::exists(path))
            m_watcher.addPath(path); // one that is watched already stays as it is
    signalIfChanged();
}

void SystemAppearance::askPortal(QDBusConnection bus)
{
    qRegisterMetaType<QDBusVariant>(); // the slot's parameters are looked up by name
    // With a service name this call would wait for the bus to tell who owns it.
    bus.connect({}, portalPath, portalInterface, u"SettingChanged"_s, this,
        SLOT(onPortalSettingChanged(QString, QString, QDBusVariant)));
    auto question = QDBusMessage::createMethodCall(portalService, portalPath, portalInterface, u"Read"_s);
    question << appearanceNamespace << colourSchemeKey;
    desktop::ask(bus, question, this, [this](const QDBusMessage &answer) {
        const QDBusPendingReply<QDBusVariant> reply = answer;
        if (reply.isValid())
            setPortalAnswer(reply.value().variant());
    });
}

void SystemAppearance::onPortalSettingChanged(
    const QString &nameSpace, const QString &key, const QDBusVariant &value)
{
    if (nameSpace == appearanceNamespace && key == colourSchemeKey)
        setPortalAnswer(value.variant());
}

void SystemAppearance::setPortalAnswer(QVariant value)
{
    // Read answers with a variant in a variant, the signal with a single one.
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    switch (value.toUInt()) {
    case 1:
        m_portal = true;
        break;
    case 2:
        m_portal = false;
        break;
    default:
        m_portal.reset();
    }
    signalIfChanged();
}

bool SystemAppearance::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange)
        signalIfChanged();
    return QObject::eventFilter(watched, event);
}

void SystemAppearance::signalIfChanged()
{
    givePalette();
    if (isDark() == m_lastAnswer)
        return;
    m_lastAnswer = !m_lastAnswer;
    Q_EMIT changed();
}

bool isDarkAppearance()
{
    return SystemAppearance::instance().isDark();
}
