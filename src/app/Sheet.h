// A dialog that is attached to the main window and blocks it.
#pragma once

#include <QDialog>
#include <QLabel>

/// The base of all sheets. It hangs below the top of its parent window, frameless, and is modal to
/// that window only. Escape and closing do what Cancel would; a sheet without Cancel stays. Quitting
/// the program is possible from every sheet.
class Sheet : public QDialog {
    Q_OBJECT
public:
    /// Whether a person may close the sheet before its work is done.
    enum class Dismiss { ByPerson, ByProgramOnly };

    Sheet(QWidget *parent, Dismiss dismiss);

    /// Shows the sheet over its parent; control returns at once.
    void beginSheet();
    /// Takes the sheet away and destroys it once control is back in the event loop.
    void endSheet();

    /// The text with invisible places to break in words, such as file names, that are too long for a line.
    static QString wrappable(const QString &text);
    /// Makes the sheet higher where a text in it has become longer.
    void growToText();

Q_SIGNALS:
    void quitRequested();

protected:
    /// What Escape does, where a person may dismiss the sheet.
    virtual void cancelled() { }

    void reject() override;
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void placeOverParent();

    const Dismiss m_dismiss;
};

/// The heading of a sheet: what is happening, or what is asked.
class SheetHeading : public QLabel {
    Q_OBJECT
public:
    explicit SheetHeading(QWidget *parent = nullptr);
};
