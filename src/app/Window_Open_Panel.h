// The window in which existing files or folders are chosen.
#pragma once

#include "app/Questions.h"

#include <QFileDialog>

class QLineEdit;

/// Qt's file dialog, or the desktop's where it has one, for an open panel. What is marked in the list is
/// chosen exactly, whatever characters its name has.
class Window_Open_Panel : public QFileDialog {
    Q_OBJECT
public:
    /// Opens at the folder `start`.
    Window_Open_Panel(const OpenPanel &panel, const QString &start, QWidget *over);

    /// What was chosen; meaningful once the dialog was accepted.
    QList<QUrl> chosen() const;

protected:
    void accept() override;

private:
    void setUp(const OpenPanel &panel);
    void setUpForNewFile(const OpenPanel &panel);
    void sortNaturally();
    void makeRoom();
    void offerPlaces(const QList<QUrl> &places);
    void keepMarksExact();
    void tellWhatIsHidden(const OpenPanel &panel);
    QString typedName() const;
    void offerToOpen();

    QLineEdit *m_field = nullptr; ///< none in a desktop's own dialog
    QUrl m_typed;
};
