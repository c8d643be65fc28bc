// The sheet behind which the listed folders are gathered in the data working folder.
#pragma once

#include "app/Sheet.h"

#include <QTimer>

#include <memory>

class AppDelegate;
class Spinner;
namespace Ui {
class Window_Data_Copy_Folders;
}
namespace writing {
struct CopyState;
}

/// Copies folder after folder. A folder counts as copied when, looked at once a poll interval, it has
/// reached the size that was measured when it was listed, or has not grown since the last look. Then
/// the next one follows, and after the last one stagingEnded() is emitted once.
class Window_Data_Copy_Folders : public Sheet {
    Q_OBJECT
public:
    Window_Data_Copy_Folders(AppDelegate *controller, QWidget *parent);
    ~Window_Data_Copy_Folders() override;

    Spinner *pgAnimation() const;
    /// Bytes below a folder, as the data list measures it. Any thread.
    static quint64 folderSize(const QString &path);
    /// Where the folder `name` is copied to when `dataFolder` may hold one of that name already: the
    /// data folder itself, else the first free "NAME n" in it, with NAME cut where that is too long for a file system.
    static QString copyDestination(const QString &dataFolder, const QString &name);

Q_SIGNALS:
    void stagingEnded();

private:
    void windowDidLoad();
    void TimerCloseWindow();
    void copyNextFolder();
    void showFolder(const QString &name);
    void startCopy(const QString &source, const QString &destination);
    void poll();
    void measured(double copied);

    AppDelegate *const m_controller;
    std::unique_ptr<Ui::Window_Data_Copy_Folders> m_ui;
    QTimer timerCloseWindow;
    double i_Last_Size = 0;
    qsizetype m_index = -1;
    QString m_target;
    std::shared_ptr<writing::CopyState> m_copy;
};
