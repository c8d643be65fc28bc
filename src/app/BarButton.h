// Buttons and labels that stand on the painted bars and stay readable on any colour chosen for them.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QIcon>
#include <QLabel>

/// The colour for text on the bar that `widget` stands on: black or white by contrast.
QColor textColourOnBar(const QWidget *widget);

/// A button on a bar. It draws itself from the bar's colour: its symbol and text in the readable
/// colour, the pointer and the keyboard focus as a light layer over the bar.
class BarButton : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(Look look READ look WRITE setLook)
    Q_PROPERTY(QString symbol READ symbol WRITE setSymbol)
    Q_PROPERTY(QString description READ description WRITE setDescription)
    Q_PROPERTY(bool bordered READ isBordered WRITE setBordered)
public:
    /// Tool: symbol over text. Mode: text, with a border when chosen. Card: a large symbol, a
    /// heading and a sentence. Prominent: the one filled button of a window.
    enum class Look { Tool, Mode, Card, Prominent };
    Q_ENUM(Look)

    explicit BarButton(QWidget *parent = nullptr);

    Look look() const { return m_look; }
    void setLook(Look look);
    /// Name of the symbol among the program's icons.
    QString symbol() const { return m_symbol; }
    void setSymbol(const QString &name);
    /// The sentence of a card.
    QString description() const { return m_description; }
    void setDescription(const QString &text);
    /// The border marks the chosen one of several mode buttons.
    bool isBordered() const { return m_bordered; }
    void setBordered(bool bordered);
    /// All texts that the button may come to have: it is as wide as the widest of them.
    void setPossibleTexts(const QStringList &texts);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void paintBackground(QPainter &painter, const QColor &text) const;
    void paintCard(QPainter &painter, const QColor &text) const;
    /// The place itself, or the one opposite where windows are read from right to left.
    QRect mirrored(const QRect &where) const;
    /// The description in lines of this width, at most so many; of the last one, what has no room is left out.
    QStringList descriptionLines(int width, int most) const;
    void paintSymbolOverText(QPainter &painter, const QColor &text) const;
    void paintSymbolBesideText(QPainter &painter, const QColor &text) const;
    void paintSymbol(QPainter &painter, const QRect &where, const QColor &colour) const;
    QFont headingFont() const;
    int widestText(const QFontMetrics &metrics) const;

    Look m_look = Look::Tool;
    QString m_symbol, m_description;
    QStringList m_possibleTexts;
    bool m_bordered = false;
};

/// A text on a bar, in the colour that is readable there.
class BarLabel : public QLabel {
    Q_OBJECT
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;
};
