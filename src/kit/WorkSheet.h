// A sheet that is up while work is done which a person may stop.
#pragma once

#include "kit/Sheet.h"

class StopBar;

/// Has a Stop button, which Escape presses, and stays until the program takes it away.
class WorkSheet : public Sheet {
    Q_OBJECT
public:
    using Sheet::Sheet;

    /// What is lost by stopping now, in whole sentences.
    void setCostOfStopping(const QString &cost);

Q_SIGNALS:
    /// The person wants the work stopped, and has been told what that costs.
    void stopRequested();

protected:
    /// To be called once the sheet has its bar.
    void adopt(StopBar *bar);
    void cancelled() override;

private:
    StopBar *m_bar = nullptr;
};
