// The name of the disc: from its field to the tools.
#include "app/MainWindow.h"
#include "runner/ToolVariable.h"
#include "ui_MainWindow.h"
#include "writing/DiscForms.h"
#include "writing/DiscName.h"
#include "writing/Job.h"

using namespace Qt::StringLiterals;

void AppDelegate::connectDiscName()
{
    const runner::ToolVariable volume("CORVALIS_VOLUME");
    const auto tellTools = [this, volume] { volume.set(writing::usableDiscName(s_Disc_Name)); };
    connect(
        ui->customviewDiscName, &DiscNameField::nameChanged, this, [this, tellTools](const QString &name) {
            s_Disc_Name = name;
            tellTools();
            listsChanged(); // what is undone brings the name back too
        });
    // The copy of a disc keeps the name of the disc that it is a copy of.
    connect(this, &AppDelegate::jobBegan, this, [this, volume, tellTools](const writing::Job *begun) {
        if (begun->work().named)
            return;
        volume.set({});
        connect(begun, &QObject::destroyed, this, tellTools);
    });
}

void AppDelegate::setDiscName(const QString &name)
{
    ui->customviewDiscName->setName(name);
}

bool AppDelegate::mayUseDiscName()
{
    const QString wrong = writing::checkDiscName(s_Disc_Name).wrong;
    if (wrong.isEmpty())
        return true;
    alert(tr("The disc cannot have this name"), tr("%1 Change the name and try again.").arg(wrong));
    ui->customviewDiscName->takeKeyboard();
    return false;
}
