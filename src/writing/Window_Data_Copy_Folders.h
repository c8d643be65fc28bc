// The sheet behind which the listed folders are gathered in the data working folder.
#pragma once

#include "kit/WorkSheet.h"

#include <QTimer>

#include <memory>

class Spinner;
namespace Ui {
class Window_Data_Copy_Folders;
}
namespace writing {
struct Progress;
}

/// Tells which folder is copied, and how much of all is there. It gives the sign to begin when it has been seen.
class Window_Data_Copy_Folders : public WorkSheet {
    Q_OBJECT
public:
    explicit Window_Data_Copy_Folders(SheetStage *stage);
    ~Window_Data_Copy_Folders() override;

    Spinner *pgAnimation() const;
    void showProgress(const writing::Progress &progress);
    /// Bytes below a folder, as the data list measures it. Any thread.
    static quint64 folderSize(const QString &path);

Q_SIGNALS:
    /// Once, 0.1 seconds after the sheet was made.
    void shown();

private:
    void windowDidLoad();
    void TimerCloseWindow();

    std::unique_ptr<Ui::Window_Data_Copy_Folders> m_ui;
    QTimer timerCloseWindow;
};
