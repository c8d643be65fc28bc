// A panel in a window that asks or tells something while the window waits.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPointer>

class SheetStage;

/// The base of all sheets. It is no window of its own: it stands in the window's stage, over a veil, keeps its place
/// there on every platform, and has the keyboard. Escape does what Cancel would; a sheet without Cancel stays. Assistive
/// tools are told a dialog with the heading as its name.
class Sheet : public QDialog {
    Q_OBJECT
public:
    /// Whether a person may close the sheet before its work is done.
    enum class Dismiss { ByPerson, ByProgramOnly };

    /// The stage owns the sheet.
    Sheet(SheetStage *stage, Dismiss dismiss);
    ~Sheet() override;

    /// Shows the sheet; control returns at once.
    void beginSheet();
    /// Takes the sheet away and destroys it once control is back in the event loop.
    void endSheet();
    /// Gives the keyboard to what has it in this sheet: the default button at first.
    void takeKeyboard();

    /// The text with invisible places to break in words, such as file names, that are too long for a line.
    static QString wrappable(const QString &text);

protected:
    /// What Escape does, where a person may dismiss the sheet.
    virtual void cancelled() { }

    void reject() override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    const QPointer<SheetStage> m_stage;
    const Dismiss m_dismiss;
};

/// The heading of a sheet: what is happening, or what is asked.
class SheetHeading : public QLabel {
    Q_OBJECT
public:
    explicit SheetHeading(QWidget *parent = nullptr);
};
