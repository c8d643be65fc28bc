// Radio buttons that hands and assistive tools take for one choice, wherever in a sheet they stand.
#pragma once

#include <QList>
#include <QObject>

class QRadioButton;

/// Arrow keys choose the next or the previous button of the list and go round; Tab comes to the chosen one only. Who of the
/// buttons switches which other one off is left to their owner: this presses them, as a person does.
class RadioChoice : public QObject {
    Q_OBJECT
public:
    /// `parent` owns this; the buttons live as long.
    RadioChoice(const QList<QRadioButton *> &buttons, QObject *parent);

Q_SIGNALS:
    /// A button was pressed twice: it is chosen, and that was all.
    void confirmed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void offerToTab();

    const QList<QRadioButton *> m_buttons;
};
