// What is opened with the program, from its command line or by another program on the desktop.
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>

class AppDelegate;

namespace desktop {

class WaitingNote;

/// Something that the window is to show.
struct Request {
    QList<QUrl> files;
    QString action; ///< the id of one of Opening's actions; empty: none
    bool isEmpty() const { return files.isEmpty() && action.isEmpty(); }
};

/// Shows what is asked for in the window: a saved list, an image with the question whether to write it, files and folders
/// on the list of the fitting tab, or one of the actions. Nothing is ever written, and no list emptied, without a person's
/// answer in the window. While a job runs or a sheet or alert is up, requests wait in their order, and the window says so.
/// GUI thread.
class Opening : public QObject {
    Q_OBJECT
public:
    /// `controller` and its window outlive this.
    explicit Opening(AppDelegate *controller);

    /// Returns at once; the window shows it from the event loop. False: `mostWaiting` requests wait already.
    bool open(const Request &request);
    /// Brings the window to the front; `token` as for raise().
    void raiseWindow(const QString &token);

    static constexpr qsizetype mostWaiting = 100;
    /// The ids of the actions, as the desktop entry has them.
    static QStringList actions();

private:
    void takeNext();
    void carryOut(const Request &request);
    void openFiles(const QList<QUrl> &files);
    void askToWrite(const QString &image);
    void addTo(int tab, const QList<QUrl> &files);
    void newAudioDisc();
    void newDataDisc();
    void writeImage();
    void copyDisc();
    struct ActionRow;
    static const QList<ActionRow> &rows();
    static const ActionRow *rowOf(const QString &action);
    bool showTab(int index); ///< false: the person wants to keep the list that this would empty
    void tellWaiting();
    static QString nameOf(const Request &request);

    AppDelegate *const m_controller;
    QList<Request> m_waiting;
    QPointer<WaitingNote> m_note; ///< a child of the window's stage, while something waits
    bool m_busy = false; ///< a question about a request is up
};

} // namespace desktop
