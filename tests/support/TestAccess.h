// What tests see of the controller beyond what its areas may call.
#pragma once

#include "app/AppDelegate.h"
#include "writing/FolderGathering.h"

class TestAccess {
public:
    /// The gathering of the job under way; null when none is.
    static writing::FolderGathering *gathering(const AppDelegate &controller)
    {
        return controller.m_gathering.get();
    }
    static void showProgress(AppDelegate &controller, const QString &piece)
    {
        controller.showProgress(piece);
    }
};
