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
        self.events = []
        self.connection.connect(f"/tmp/.X11-unix/X{display}")
        self.root = self._set_up()
        attributes = struct.pack("<BxHIII", 2, 4, self.root, 0x800, SUBSTRUCTURE_NOTIFY)
        self.connection.sendall(attributes)
        self.protocols, self.delete = self._atom(b"WM_PROTOCOLS"), self._atom(b"WM_DELETE_WINDOW")

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

    def _ask(self, request):
        """The answer to a request, None when it is an error. Events that come first wait in self.events."""
        self.connection.sendall(request)
        while True:
            answer = self._read(32)
            if answer[0] <= 1:
                return answer if answer[0] == 1 else None
            self.events.append((time.perf_counter(), answer))

    def _atom(self, name):
        padded = name + b"\0" * (-len(name) % 4)
        return struct.unpack_from("<I", self._ask(struct.pack("<BxHHxx", 16, 2 + len(padded) // 4, len(name)) + padded), 8)[0]

    def _next_event(self, timeout):
        if self.events:
            return self.events.pop(0)
        if not select.select([self.connection], [], [], max(0, timeout))[0]:
            return None
        event = self._read(32)
        return time.perf_counter(), event

    def _close_window(self, window):
        """Asks a window to close, as its frame's button would (ICCCM 4.2.8.1)."""
        message = struct.pack("<BBHIIII12x", 33, 32, 0, window, self.protocols, self.delete, 0)
        self.connection.sendall(struct.pack("<BxHII", 25, 11, window, 0) + message)

    def wait_for_window(self, width, height, timeout):
        """The time.perf_counter() at which a window of at least this size was mapped; None after `timeout` seconds.

        A smaller window, such as a dialog with a message, is asked to close the moment it appears.
        """
        end = time.perf_counter() + timeout
        while (found := self._next_event(end - time.perf_counter())) is not None:
            now, event = found
            if event[0] & 0x7F != MAP_NOTIFY or event[12]:  # of a menu or tooltip: override-redirect
                continue
            window = struct.unpack_from("<I", event, 8)[0]
            size = self._ask(struct.pack("<BxHI", 14, 2, window))
            if size is None:
                continue
            has_width, has_height = struct.unpack_from("<HH", size, 16)
            if has_width >= width and has_height >= height:
                return now
            self._close_window(window)
        return None

    def close(self):
        self.connection.close()


@contextlib.contextmanager
def virtual_display():
    """A new X server; gives its number, and ends it afterwards."""
    reader, writer = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1280x800x24", "-nolisten", "tcp", "-noreset"],
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
