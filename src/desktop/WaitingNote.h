// The line that tells what waits behind a sheet.
#pragma once

#include <QLabel>

namespace desktop {

/// Stands at the upper edge of another widget, as wide as that, for as long as it lives. Plain text, cut at the end.
class WaitingNote : public QLabel {
    Q_OBJECT
public:
    explicit WaitingNote(QWidget *over);

    void setText(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();
    QString m_whole;
};

} // namespace desktop
