// Where a person names the disc: a field on the bar at the bottom, which tells at once what is wrong with a name.
#pragma once

#include "ui/PaintedViews.h"

class BarLabel;
class QLineEdit;

/// GUI thread only.
class DiscNameField : public View_Bottom_Bar_BG_Color {
    Q_OBJECT
public:
    explicit DiscNameField(QWidget *parent = nullptr);

    /// Any text; what is longer than anybody means is cut.
    void setName(const QString &name);
    /// As typed.
    QString name() const;
    void takeKeyboard();

Q_SIGNALS:
    /// By typing or by setName(); whether a disc can have it is checkDiscName()'s answer.
    void nameChanged(const QString &name);

private:
    void check();
    void mark(const QString &wrong);

    BarLabel *const m_heading;
    QLineEdit *const m_edit;
    BarLabel *const m_sentence; ///< what is to be said of the name, else its length
    QAction *m_mark = nullptr; ///< in the field, while the name is wrong
};
