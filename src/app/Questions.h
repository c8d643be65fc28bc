// The one door through which the program asks a person something: alerts and open panels. Windows
// stand behind it in normal use, the command line in a batch run.
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

class QWidget;

/// A modal alert: a message, a text below it, and buttons of which the first is the default.
struct Alert {
    /// What the alert is about: news, something that hinders, something that failed.
    enum class Sign { Note, Warning, Error };
    /// Which text is what a tool printed, so that its columns matter.
    enum class Report { None, Message, Informative };

    QString message;
    QString informative;
    QStringList buttons;
    Sign sign = Sign::Warning;
    Report report = Report::None;
    int dismissed = -1; ///< position of the button that closing stands for; below 0: the last
};

/// A panel in which existing files or folders are chosen, or the name of a new file.
struct OpenPanel {
    enum class Choose { Files, Folder, NewFile };
    Choose choose = Choose::Files;
    bool several = false;
    QStringList extensions; ///< accepted ones, in any case; none: every file
    QString message; ///< what the person is asked for
    QString newName; ///< of a new file; a name typed without an extension gets the first of `extensions`
    QString startFolder; ///< where the panel opens; empty: where the last one was
    QList<QUrl>
        places; ///< folders that the panel offers at its side; without a start folder it opens in the first
};

/// Called on the GUI thread only.
class Questions {
    Q_DECLARE_TR_FUNCTIONS(Questions)
public:
    virtual ~Questions() = default;

    /// Shows the alert over `over` and answers the position of the button pressed; closing it
    /// without a button counts as the alert says.
    virtual int ask(const Alert &alert, QWidget *over) = 0;

    /// The chosen files or folder; none when the person did not confirm. All have names that are text, and
    /// one of the accepted extensions.
    virtual QList<QUrl> choose(const OpenPanel &panel, QWidget *over) = 0;

    /// The texts of the alerts for files whose names are not text, and for files of another kind.
    static QString unusableFiles();
    static QString unreadableNamesText();
    static QString otherKindText(const QStringList &extensions);
};

/// Alerts and panels as windows.
class WindowQuestions : public Questions {
public:
    int ask(const Alert &alert, QWidget *over) override;
    QList<QUrl> choose(const OpenPanel &panel, QWidget *over) override;

private:
    /// Leaves out what cannot be used, and tells of it.
    QList<QUrl> usable(QList<QUrl> chosen, const QStringList &extensions, QWidget *over);

    QString m_lastFolder;
};
