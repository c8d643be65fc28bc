"""An entry in the menu of Files: folders and disc images are opened with Corvalis."""
import locale
import subprocess

from gi.repository import GObject, Nautilus

IMAGES = ("application/vnd.efi.iso", "application/x-cd-image", "application/x-raw-disk-image")

ENGLISH = ("Write to Disc with Corvalis", "Put the folders on a data disc, or write the disc image")
TEXTS = {
    "de": ("Mit Corvalis auf Disc brennen",
           "Die Ordner auf eine Daten-Disc bringen oder das Disc-Abbild brennen"),
    "fr": ("Graver sur un disque avec Corvalis",
           "Mettre les dossiers sur un disque de données ou graver l’image disque"),
    "es": ("Grabar en un disco con Corvalis",
           "Poner las carpetas en un disco de datos o grabar la imagen de disco"),
    "pt_BR": ("Gravar em disco com o Corvalis",
           "Colocar as pastas em um disco de dados ou gravar a imagem de disco"),
}


def texts():
    """The entry's title and what it does, in the person's language."""
    language = locale.getlocale(locale.LC_MESSAGES)[0] or ""
    return TEXTS.get(language, TEXTS.get(language.partition("_")[0], ENGLISH))


class WriteToDisc(GObject.GObject, Nautilus.MenuProvider):
    """Where all that is selected lies on this computer and can be opened."""

    # The last argument is all: before version 4 of the interface a window came first.
    def get_file_items(self, *arguments):
        files = arguments[-1]
        paths = [file.get_location().get_path() for file in files if self._fits(file)]
        if not paths or len(paths) != len(files) or None in paths:
            return []
        title, tip = texts()
        item = Nautilus.MenuItem(
            name="Corvalis::WriteToDisc",
            label=title,
            tip=tip,
            icon="corvalis",
        )
        item.connect("activate", lambda _item: subprocess.Popen(["corvalis", "--", *paths]))
        return [item]

    @staticmethod
    def _fits(file):
        return file.is_directory() or file.get_mime_type() in IMAGES
