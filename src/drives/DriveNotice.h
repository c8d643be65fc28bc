// A calm line in the window that tells of something, with at most one thing to do about it.
#pragma once

#include <QFrame>
#include <QPointer>

#include <functional>

class QHBoxLayout;
class QLabel;
class QPushButton;

/// Hidden until something is told; goes when its button is pressed or the person closes it. GUI thread only.
class DriveNotice : public QFrame {
    Q_OBJECT
public:
    explicit DriveNotice(QWidget *parent);

    void tell(const QString &text);
    /// `act` is called once when the button with this title is pressed.
    void offer(const QString &text, const QString &title, const QString &toolTip, std::function<void()> act);
    void takeAway();
    QString text() const;

private:
    QHBoxLayout *const m_row;
    QLabel *const m_text;
    QPointer<QPushButton> m_button; ///< while there is something to do
};
