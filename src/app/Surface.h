// Where the program appears, and what of the toolkit's words a person gets to read. For the first lines of
// main().
#pragma once

#include <QByteArray>
#include <QString>

namespace surface {

/// Where the program is to appear.
enum class Place {
    Display,
    Nowhere, ///< a batch run needs no display, and neither does asking for help
    DisplayMissing, ///< there is none, which matters only if a window turns out to be wanted
};

/// A service or a scheduled job may have no HOME; the toolkit would then take the root of the file system for
/// it. Sets it to the user's home folder.
void knowHome();

/// To be called before the application object is made: chooses the toolkit's platform from the command line
/// and the environment, and hushes it where nobody is to see a window.
Place choose(int argc, char **argv);

/// To be called once the application object stands: from here on the toolkit speaks to whoever started the
/// window, unless it is hushed.
void chosen(Place place);

/// At a terminal, what the toolkit has to say of windows, locales and folders is no news: from now on only
/// the program's own words are told.
void hush();

/// A text for a terminal, in UTF-8. Signs that would command the terminal, as they may stand in the name of a
/// file, are replaced; line breaks and tabs stay.
QByteArray printable(QString text);

/// Says that there is no display, and ends the process with 1.
[[noreturn]] void endWithoutDisplay();

} // namespace surface
