"""A virtual display, and an eye on it that sees a window the moment it is mapped.

Speaks the X11 protocol itself (X Window System Protocol, Version 11, chapters 8 and 9): a MapNotify event arrives within
a fraction of a millisecond, where polling would cost the time between two looks and load the machine meanwhile.
"""

import contextlib
import os
import select
import socket
import struct
import subprocess
import time

SUBSTRUCTURE_NOTIFY = 0x80000
MAP_NOTIFY = 19


class Watcher:
    """Sees the top-level windows of a display. One connection; close it with close()."""

    def __init__(self, display):
        self.connection = socket.socket(socket.AF_UNIX)
        self.connection.connect(f"/tmp/.X11-unix/X{display}")
        self.root = self._set_up()
        attributes = struct.pack("<BxHIII", 2, 4, self.root, 0x800, SUBSTRUCTURE_NOTIFY)
        self.connection.sendall(attributes)
        self._geometry(self.root)  # its answer tells that the wish above is in force

    def _set_up(self):
        self.connection.sendall(struct.pack("<BxHHHHxx", ord("l"), 11, 0, 0, 0))
        accepted, length = struct.unpack("<BxxxxxH", self._read(8))
        answer = self._read(4 * length)
        if accepted != 1:
            raise RuntimeError("the X server refused the connection")
        vendor, formats = struct.unpack_from("<H", answer, 16)[0], answer[21]
        return struct.unpack_from("<I", answer, 32 + (vendor + 3) // 4 * 4 + 8 * formats)[0]

    def _read(self, count):
        data = b""
        while len(data) < count:
            piece = self.connection.recv(count - len(data))
            if not piece:
                raise RuntimeError("the X server is gone")
            data += piece
        return data

    def _geometry(self, window):
        """Width and height, None when the window is gone already. Events that come first are dropped: none is
        awaited while this is asked."""
        self.connection.sendall(struct.pack("<BxHI", 14, 2, window))
        while True:
            answer = self._read(32)
            if answer[0] == 1:
                return struct.unpack_from("<HH", answer, 16)
            if answer[0] == 0:
                return None

    def wait_for_window(self, width, height, timeout):
        """The time.perf_counter() at which a window of at least this size was mapped; None after `timeout` seconds."""
        end = time.perf_counter() + timeout
        while (left := end - time.perf_counter()) > 0:
            if not select.select([self.connection], [], [], left)[0]:
                break
            event = self._read(32)
            now = time.perf_counter()
            if event[0] & 0x7F != MAP_NOTIFY or event[12]:  # of a menu or tooltip: override-redirect
                continue
            size = self._geometry(struct.unpack_from("<I", event, 8)[0])
            if size and size[0] >= width and size[1] >= height:
                return now
        return None

    def close(self):
        self.connection.close()


@contextlib.contextmanager
def virtual_display():
    """A new X server; gives its number, and ends it afterwards."""
    reader, writer = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1280x800x24", "-nolisten", "tcp"],
        pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writer)
    try:
        with os.fdopen(reader) as report:
            number = report.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        yield number
    finally:
        server.terminate()
        server.wait()
