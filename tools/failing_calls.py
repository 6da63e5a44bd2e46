"""Says to libquill_failing_calls.so, from outside, which file call fails; see tests/faults/FailingCalls.cpp."""
import errno
import mmap
import os
import re
import struct
import subprocess

OPEN_TO_READ, OPEN_TO_WRITE, WRITE, SYNC, NAME, FOLDER, SIZE = (1 << bit for bit in range(7))
ALL = 127
CHANGING = OPEN_TO_WRITE | NAME | FOLDER | SIZE
SHORT_WRITE = -1
LAYOUT = struct.Struct("=qqqiii256s512s4x")

# What fails: the name, the error, which calls count, and whether all after the first fail too.
FAULTS = (
    ("no space, once", errno.ENOSPC, CHANGING | WRITE | SYNC, False),
    ("read-only, once", errno.EROFS, CHANGING, False),
    ("not permitted, once", errno.EACCES, CHANGING | OPEN_TO_READ, False),
    ("I/O error, once", errno.EIO, ALL, False),
    ("short write, once", SHORT_WRITE, WRITE, False),
    ("full from there on", SHORT_WRITE, OPEN_TO_WRITE | WRITE | FOLDER | SIZE, True),
    ("read-only from there on", errno.EROFS, CHANGING, True),
    ("I/O errors from there on", errno.EIO, ALL, True),
)


class FailingCalls:
    """folder: only calls on what lies below it count; it has no symbolic link in it."""

    def __init__(self, build, folder, control):
        self.folder = folder
        with open(control, "wb") as file:
            file.write(bytes(LAYOUT.size))
        self.file = open(control, "r+b")
        self.memory = mmap.mmap(self.file.fileno(), LAYOUT.size)
        library = os.path.abspath(os.path.join(build, "libquill_failing_calls.so"))
        needed = subprocess.run(["ldd", os.path.join(build, "quill-driver")], capture_output=True, text=True)
        sanitizer = re.findall(r"=> (\S*libasan\S*)", needed.stdout)  # has to be loaded before all others
        self.environment = {"LD_PRELOAD": ":".join(sanitizer + [library]),
                            "QUILL_FAILING_CALLS": control, "ASAN_OPTIONS": "detect_leaks=0"}

    def fail(self, number, error, kinds, goes_on):
        """From now on the calls are counted, and this one fails."""
        LAYOUT.pack_into(self.memory, 0, number, 0, 0, kinds, error, goes_on, self.folder.encode(), b"")

    def stop(self):
        """How many calls failed, and the first of them as text."""
        _, _, failed, *_, call = LAYOUT.unpack_from(self.memory)
        LAYOUT.pack_into(self.memory, 0, 0, 0, 0, 0, 0, 0, b"", b"")
        return failed, call.rstrip(b"\0").decode(errors="replace")
