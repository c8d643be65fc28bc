// The Stop button of a sheet that waits for work, and the one question that it asks.
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

/// One row: Stop. Pressed, it says in its own place what stopping costs, and asks once; nothing waits for the answer.
/// "Stop Now" emits stopRequested() once and leaves the bar telling that the work is being stopped.
class StopBar : public QWidget {
    Q_OBJECT
public:
    explicit StopBar(QWidget *parent = nullptr);

    /// What is lost by stopping now, in whole sentences. May change while the question stands.
    void setCost(const QString &cost);

    /// What Escape means: asks, or takes the question back.
    void escape();

Q_SIGNALS:
    void stopRequested();

private:
    void ask(bool asking);
    void stop();

    QLabel *const m_question;
    QPushButton *const m_stop;
    QPushButton *const m_goOn;
    QPushButton *const m_stopNow;
    bool m_asking = false;
    bool m_stopped = false;
};
