#include "kit/WorkSheet.h"

#include "kit/StopBar.h"

void WorkSheet::adopt(StopBar *bar)
{
    m_bar = bar;
    connect(bar, &StopBar::stopRequested, this, &WorkSheet::stopRequested);
}

void WorkSheet::setCostOfStopping(const QString &cost)
{
    m_bar->setCost(cost);
}

void WorkSheet::cancelled()
{
    m_bar->escape();
}
