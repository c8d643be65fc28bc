#include "compilation/SpaceOccupiedView.h"

#include "compilation/Capacity.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLinearGradient>
#include <QPainter>
#include <QStyle>

namespace {

/// The gauge for who cannot see it: a value in per cent, above 100 where the list is too long.
class GaugeFace : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit GaugeFace(SpaceOccupiedView *gauge)
        : QAccessibleWidget(gauge, QAccessible::ProgressBar)
    {
    }

    QVariant currentValue() const override { return gauge()->i_Percentage(); }
    void setCurrentValue(const QVariant &) override { } // it only informs
    QVariant minimumValue() const override { return 0; }
    QVariant maximumValue() const override { return qMax(qint64(100), gauge()->i_Percentage()); }
    QVariant minimumStepSize() const override { return 1; }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? SpaceOccupiedView::tr("%1 %").arg(gauge()->i_Percentage())
                                          : QAccessibleWidget::text(kind);
    }

protected:
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

private:
    const SpaceOccupiedView *gauge() const { return static_cast<const SpaceOccupiedView *>(widget()); }
};

QAccessibleInterface *makeFace(const QString &, QObject *object)
{
    auto *gauge = qobject_cast<SpaceOccupiedView *>(object);
    return gauge ? new GaugeFace(gauge) : nullptr;
}

} // namespace

SpaceOccupiedView::SpaceOccupiedView(QWidget *parent)
    : QWidget(parent)
{
    QAccessible::installFactory(makeFace); // a second time it changes nothing
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SpaceOccupiedView::setI_Percentage(qint64 percentage)
{
    const bool isNew = percentage != m_percentage;
    m_percentage = percentage;
    update();
    if (!isNew)
        return;
    QAccessibleValueChangeEvent changed(this, percentage);
    QAccessible::updateAccessibility(&changed);
}

void SpaceOccupiedView::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    QLinearGradient ground(0, height(), 0, 0);
    ground.setColorAt(0, Qt::lightGray);
    ground.setColorAt(1, Qt::black);
    painter.fillRect(rect(), ground);
    const compilation::GaugeBars bars = compilation::gaugeBars(m_percentage, width());
    const auto fill = [&](int from, int columns, const QColor &colour) {
        const QRect bar(from, 0, columns, height());
        painter.fillRect(QStyle::visualRect(layoutDirection(), rect(), bar), colour);
    };
    fill(0, bars.bar, m_colour ? m_colour() : QColor());
    fill(bars.bar, bars.red, QColor(255, 0, 0));
}
