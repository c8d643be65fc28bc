// The language that windows and the batch form speak.
#pragma once

#include <QLocale>
#include <QString>

namespace languages {

/// Where the translations lie: beside the programs, both as built and as installed.
QString folder();

/// Installs the translations into the first of `locale`'s languages that there are any for, and the toolkit's into
/// the same one; the direction of the windows follows. Numbers keep the form of the system's locale. English is
/// the language of the source, whose plurals are a translation as well: without a language of the person's, they are
/// all that is installed. Called once, on the GUI thread, before the first window.
void speak(const QLocale &locale = QLocale::system(), const QString &translations = folder());

} // namespace languages
