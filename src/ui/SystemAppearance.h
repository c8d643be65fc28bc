// Whether the desktop is dark.
#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QPalette>
#include <QString>

#include <optional>

class QVariant;

/// Answers whether the person works on a dark desktop. Asked in this order, the first that has an answer
/// decides:
/// 1. the key "AppleInterfaceStyle" in the user's global preferences file, GlobalPreferences.conf in the
///    configuration folder ($XDG_CONFIG_HOME, else ~/.config), an INI file; "Dark" is dark, anything else is
///    light;
/// 2. the desktop portal's setting org.freedesktop.appearance color-scheme: 1 is dark, 2 is light, 0 no
/// answer;
/// 3. the application's palette: dark when its window text is lighter than its window.
/// Lives on the GUI thread and never waits: the portal is asked in the background, and until it answers (and
/// where there is no session bus) the palette decides.
class SystemAppearance : public QObject {
    Q_OBJECT
public:
    /// The one of this application, made at the first call. It begins to ask the portal then.
    static SystemAppearance &instance();

    explicit SystemAppearance(QObject *parent = nullptr);

    bool isDark() const;
    /// From now on the whole application has dark or light colours of ours where the preferences file or the portal
    /// say other than the toolkit's palette, and the toolkit's palette again where they do not.
    void leadPalette();
    /// The file that is read for "AppleInterfaceStyle". Nothing here ever writes it.
    static QString globalPreferencesFile();

Q_SIGNALS:
    /// The answer has become another one. The global preferences file is watched where its folder was there
    /// at the start; else its change is seen at the next isDark() and not signalled.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void onPortalSettingChanged(const QString &nameSpace, const QString &key, const QDBusVariant &value);

private:
    void watchFile();
    void askPortal(QDBusConnection bus);
    void setPortalAnswer(QVariant value);
    void signalIfChanged();
    void givePalette();
    std::optional<bool> statedDark() const; ///< by the file or the portal
    const std::optional<QString> &interfaceStyle() const;

    QFileSystemWatcher m_watcher;
    std::optional<bool> m_portal;
    bool m_lastAnswer = false;
    bool m_leadsPalette = false;
    bool m_givesPalette = false; ///< right now
    std::optional<QPalette> m_toolkits; ///< the palette in whose place ours stands

    struct {
        QDateTime modified; ///< invalid until the file was read
        qint64 size = 0;
        std::optional<QString> interfaceStyle;
    } mutable m_file;
};

/// Shorthand for SystemAppearance::instance().isDark().
bool isDarkAppearance();
