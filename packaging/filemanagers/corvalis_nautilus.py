"""An entry in the menu of Files: folders and disc images are opened with Corvalis."""
import subprocess

from gi.repository import GObject, Nautilus

IMAGES = ("application/vnd.efi.iso", "application/x-cd-image", "application/x-raw-disk-image")


class WriteToDisc(GObject.GObject, Nautilus.MenuProvider):
    """Where all that is selected lies on this computer and can be opened."""

    # The last argument is all: before version 4 of the interface a window came first.
    def get_file_items(self, *arguments):
        files = arguments[-1]
        paths = [file.get_location().get_path() for file in files if self._fits(file)]
        if not paths or len(paths) != len(files) or None in paths:
            return []
        item = Nautilus.MenuItem(
            name="Corvalis::WriteToDisc",
            label="Write to Disc with Corvalis",
            tip="Put the folders on a data disc, or write the disc image",
            icon="corvalis",
        )
        item.connect("activate", lambda _item: subprocess.Popen(["corvalis", "--", *paths]))
        return [item]

    @staticmethod
    def _fits(file):
        return file.is_directory() or file.get_mime_type() in IMAGES
