// What is told of the drives beside their list: one was plugged in, the chosen one is gone or may not be used.
#pragma once

#include "drives/DriveWatch.h"

#include <QPointer>
#include <QStringList>

class AppDelegate;
class DriveNotice;
class QAction;
namespace runner {
class ToolRun;
}

/// Puts a line into the window and items into the Drive menu while there is something to tell, and has the drives listed
/// anew when one comes or goes. Changes no choice by itself. GUI thread; a child of the controller.
class DriveNews : public QObject {
    Q_OBJECT
public:
    /// `events` may be null: then nobody tells of drives that come and go.
    DriveNews(std::unique_ptr<DriveEvents> events, AppDelegate *controller);

private:
    void listAnew();
    void listed(const QStringList &appeared);
    void looked(); ///< a person asked for the drives, and they are listed
    void chosen();
    void told(const QString &status);
    void showRefusal(const QString &sentence);

    AppDelegate *const m_controller;
    DriveNotice *const m_notice;
    QPointer<runner::ToolRun> m_listing;
    bool m_nothingNew = false; ///< the newest listing had nothing to tell
    QString m_offered; ///< title of the drive that was plugged in last
    QString m_toldGone; ///< title of the drive that was told as gone
    QString m_refusal; ///< the engine's sentence; empty: the drive may be used, as far as is known
    QPointer<QAction> m_goneItem, m_refusedItem, m_whyItem;
};
