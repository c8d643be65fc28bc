// The door to the preview player. The player is a module of its own, because the media library it uses brings
// a hundred others with it: the program loads it when a person first plays a file.
#pragma once

#include <QString>

#include <functional>

class QDialog;
class QSettings;
class QUrl;
class QWidget;

/// Shows an alert with its two texts and one button over a window, and returns when it is gone.
using PreviewAlert = std::function<void(const QString &message, const QString &informative, QWidget *over)>;

/// What the module exports under createPreviewSymbol: makes the player's window for one local file, which
/// calls `alert` while it is open. The caller owns the window. GUI thread only.
using CreatePreview = QDialog *(*)(const QUrl &file, QWidget *parent, const PreviewAlert &alert);
inline constexpr const char *createPreviewSymbol = "corvalis_create_preview";

/// The module's place: ../libexec/corvalis/corvalis_preview.so seen from the folder of the program, in the
/// build tree and installed alike.
QString previewModuleFile();

/// Makes the player's window, hidden. Null where the module is missing or does not load; then `*whyNot` is a
/// sentence for a person. GUI thread only.
QDialog *createPreview(const QUrl &file, QWidget *parent, const PreviewAlert &alert, QString *whyNot);

/// The key under which playPreview keeps how loud a person likes it: per cent, 0 silent ... 100 as recorded.
inline constexpr const char *previewVolumeKey = "Preview_Volume";

/// Shows the player's window, which blocks every other window until it is closed and then destroys itself. It
/// is as loud as the last one was; `preferences`, which keep that, must live longer than the window. Returns
/// at once: an empty text, or a sentence that says why there is no player.
[[nodiscard]] QString playPreview(
    const QUrl &file, QWidget *parent, QSettings &preferences, const PreviewAlert &alert);
