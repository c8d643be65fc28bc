// The place in a window where its sheets stand, and the veil that is over everything else meanwhile.
#pragma once

#include <QList>
#include <QPointer>
#include <QScrollArea>

class QGridLayout;
class Sheet;

/// Covers the content of a window, not its menu bar, while sheets are up or somebody holds it. The content takes no
/// input then: neither mouse nor keys nor drops. A window that is smaller than its sheet scrolls it. GUI thread only.
class SheetStage : public QScrollArea {
    Q_OBJECT
public:
    /// `content` is what is covered; it is not owned and outlives the stage, which is its sibling.
    explicit SheetStage(QWidget *content);
    ~SheetStage() override;

    /// The stage of the window to which `widget` belongs; null where that window has none.
    static SheetStage *of(const QWidget *widget);

    /// Keeps input from the content also while no sheet is up, as between two sheets of one job. Each hold() wants its
    /// release().
    void hold();
    void release();
    /// Whether the content is kept from input.
    bool isOccupied() const { return m_holds > 0 || !m_sheets.isEmpty(); }

    /// The newest sheet that is up; null when none is.
    Sheet *sheet() const;

    /// A window in front, such as an alert, that gets the keys which reach the window by a click behind it. Null: none.
    void setFront(QWidget *front) { m_front = front; }
    QWidget *front() const;

    /// The parent of the sheets.
    QWidget *ground() const { return m_ground; }

Q_SIGNALS:
    /// The content is from now on kept from input, or no longer.
    void occupiedChanged(bool occupied);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class Sheet;
    void begin(Sheet *sheet);
    void end(Sheet *sheet);
    void update();
    void giveKeyboard();

    QWidget *const m_content;
    QWidget *const m_ground;
    QGridLayout *const m_places;
    QList<Sheet *> m_sheets;
    QPointer<QWidget> m_front;
    QPointer<QWidget> m_focusBefore; ///< what had the keyboard when the content was covered
    int m_holds = 0;
    bool m_occupied = false;
};
