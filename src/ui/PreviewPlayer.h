// The door to the preview player. The player is a module of its own, because the media library it uses brings
// a hundred others with it: the program loads it when a person first plays a file.
#pragma once

#include <QString>

class QDialog;
class QUrl;
class QWidget;

/// What the module exports under createPreviewSymbol: makes the player's window for one local file. The
/// caller owns the window. GUI thread only.
using CreatePreview = QDialog *(*)(const QUrl &file, QWidget *parent);
inline constexpr const char *createPreviewSymbol = "corvalis_create_preview";

/// The module's place: ../libexec/corvalis/corvalis_preview.so seen from the folder of the program, in the
/// build tree and installed alike.
QString previewModuleFile();

/// Makes the player's window, hidden. Null where the module is missing or does not load; then `*whyNot` is a
/// sentence for a person. GUI thread only.
QDialog *createPreview(const QUrl &file, QWidget *parent, QString *whyNot);

/// Shows the player's window, which blocks every other window until it is closed and then destroys itself.
/// Returns at once: an empty text, or a sentence that says why there is no player.
[[nodiscard]] QString playPreview(const QUrl &file, QWidget *parent);
