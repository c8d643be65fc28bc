#include "ui/PreviewPlayer.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QLibrary>

using namespace Qt::StringLiterals;

QString previewModuleFile()
{
    return QDir::cleanPath(
        QCoreApplication::applicationDirPath() + "/../libexec/corvalis/corvalis_preview.so"_L1);
}

QDialog *createPreview(const QUrl &file, QWidget *parent, QString *whyNot)
{
    // The module stays loaded when this object goes.
    QLibrary module(previewModuleFile());
    const auto function = module.resolve(createPreviewSymbol);
    if (!function) {
        *whyNot = QCoreApplication::translate("PreviewPlayer",
            "The preview player is not installed completely: %1. Install "
            "Corvalis again together with its preview player.")
                      .arg(module.errorString());
        return nullptr;
    }
    return reinterpret_cast<CreatePreview>(function)(file, parent);
}

QString playPreview(const QUrl &file, QWidget *parent)
{
    QString whyNot;
    if (auto *window = createPreview(file, parent, &whyNot)) {
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->setWindowModality(Qt::ApplicationModal);
        window->show();
    }
    return whyNot;
}
