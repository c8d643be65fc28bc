// The main window: what stands where. What it does is the controller's.
#pragma once

#include <QMainWindow>

#include <memory>

class SheetStage;
namespace Ui {
class MainWindow;
}

/// Loads its layout and hands every element to the controller.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    Ui::MainWindow *ui() const { return m_ui.get(); }
    SheetStage *stage() const { return m_stage; }

Q_SIGNALS:
    /// The window is closing, whatever the cause.
    void closing();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    std::unique_ptr<Ui::MainWindow> m_ui;
    SheetStage *m_stage; ///< where its sheets stand
};
