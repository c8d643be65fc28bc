#include "ui/PreviewPlayer.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QLibrary>
#include <QSettings>

#include <algorithm>

using namespace Qt::StringLiterals;

QString previewModuleFile()
{
    return QDir::cleanPath(
        QCoreApplication::applicationDirPath() + "/../libexec/corvalis/corvalis_preview.so"_L1);
}

namespace {

constexpr int loudest = 100;

int storedVolume(const QSettings &preferences)
{
    bool isNumber = false;
    const int percent = preferences.value(QLatin1StringView(previewVolumeKey)).toInt(&isNumber);
    return isNumber ? std::clamp(percent, 0, loudest) : loudest;
}

} // namespace

QDialog *createPreview(const QUrl &file, QWidget *parent, const PreviewAlert &alert, QString *whyNot)
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
    return reinterpret_cast<CreatePreview>(function)(file, parent, alert);
}

QString playPreview(const QUrl &file, QWidget *parent, QSettings &preferences, const PreviewAlert &alert)
{
    QString whyNot;
    if (auto *window = createPreview(file, parent, alert, &whyNot)) {
        window->setProperty("volume", static_cast<float>(storedVolume(preferences)) / loudest);
        QObject::connect(window, &QDialog::finished, window, [window, &preferences] {
            const int percent = qRound(window->property("volume").toFloat() * loudest);
            if (percent != storedVolume(preferences))
                preferences.setValue(QLatin1StringView(previewVolumeKey), percent);
        });
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->setWindowModality(Qt::ApplicationModal);
        window->show();
    }
    return whyNot;
}
