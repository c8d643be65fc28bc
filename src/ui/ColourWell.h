// A button that holds a colour.
#pragma once

#include <QColor>
#include <QPushButton>

/// Shows its colour, and lets a person choose another one when it is pressed. An invalid colour is shown as
/// none.
class ColourWell : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QColor colour READ colour WRITE setColour NOTIFY colourChanged)
public:
    explicit ColourWell(QWidget *parent = nullptr);

    QColor colour() const { return m_colour; }
    void setColour(const QColor &colour);

    QSize sizeHint() const override;

Q_SIGNALS:
    void colourChanged(const QColor &colour);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void choose();

    QColor m_colour;
};
