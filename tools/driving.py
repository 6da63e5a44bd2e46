"""Drives the program by quill-driver's lines: one process, and what a user does most often with it.

Coordinates are those of the screen at scale 1, as in the driver's own protocol. Whatever the driver
refuses, and its end, is an exception.
"""
import json
import os
import subprocess
import sys

MAGIC = b"\x89INKX"
MEMO_FOLDER = "My Documents/Fennick"
BY_NAME, BY_COMPANY, BY_MEMO = 59413, 32823, 32825
NEW, CONFIGURATION, DELETE = 57600, 32830, 40017
ADD_APPOINTMENT, ADD_MEMO, FIRST_APPOINTMENT, MODIFY, DELETE_MEMO = 32819, 32820, 33001, 1000, 32826
ROW_HEIGHT, RECORD_ROW_HEIGHT = 16, 19


class Gone(Exception):
    """The program ended before it answered."""


class Refused(Exception):
    """The program answered, but not with ok."""


class Driver:
    def __init__(self, build, home, *options, **environment):
        self.log = open(os.path.join(os.path.dirname(home), "log"), "ab")
        self.process = subprocess.Popen(
            [os.path.join(build, "quill-driver"), "--home", home, *options],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=self.log,
            env={**os.environ, "QT_QPA_PLATFORM": "offscreen", **environment})
        self.answers = 0
        self.read()

    def read(self):
        line = self.process.stdout.readline()
        if not line.endswith(b"\n"):
            raise Gone()
        return json.loads(line)

    def try_to(self, op, **arguments):
        """The answer, whatever it is."""
        try:
            self.process.stdin.write(json.dumps({"op": op, **arguments}).encode() + b"\n")
            self.process.stdin.flush()
        except BrokenPipeError:
            raise Gone() from None
        self.answers += 1
        return self.read()

    def do(self, op, **arguments):
        """The result, which stands under the operation's name where there is one."""
        answer = self.try_to(op, **arguments)
        if not answer["ok"]:
            raise Refused(f"{op} {arguments}: {answer['error']}")
        return answer.get(op, answer)

    def kill(self):
        self.process.kill()

    def wait(self):
        """The exit code, negative for a signal."""
        for stream in (self.process.stdin, self.process.stdout, self.log):
            try:
                stream.close()
            except BrokenPipeError:
                pass
        return self.process.wait()

    def end(self):
        """Ends the program in the ordinary way."""
        code = self.wait()
        if code:
            raise Refused(f"the program ended with {code}")

    # What a user does. Those that return nothing leave the window open that they opened.

    def tap_list(self, row, op="tap", x=50):
        self.do(op, on="list", x=x, y=ROW_HEIGHT * row + 8)

    def choose_from_row(self, row, command):
        self.tap_list(row, "hold")
        self.do("choose", id=command)

    def tap_record_row(self, page, row):
        self.do("page", index=page)
        self.do("panel", up=False)
        self.do("tap", on="rows", x=120, y=RECORD_ROW_HEIGHT * row + 9)

    def enter(self, page, row, text):
        """Types a text into a row of the record sheet."""
        self.tap_record_row(page, row)
        self.do("type", text=text)

    def reveal_and_set(self, control, **value):
        self.do("reveal", id=control)
        self.do("set", id=control, **value)

    def write_strokes(self, count, offset=0):
        for stroke in range(count):
            y = 20 + (7 * (stroke + offset)) % 150
            self.do("stroke", on="ink",
                    points=[[10 + 3 * i, y + i % 7, 0.3 + i % 5 / 10] for i in range(20)])


def quill(build, home, *arguments):
    """The finished command of quill; its output is text."""
    return subprocess.run([os.path.join(build, "quill"), "--home", home, *arguments],
                          env={**os.environ, "QT_QPA_PLATFORM": "offscreen"},
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=120)


def check(build, home):
    """Fails unless the store is sound, its index right without having been made anew."""
    answer = quill(build, home, "check", "--json")
    health = json.loads(answer.stdout.splitlines()[-1]) if not answer.returncode else None
    if not health or health["fileFaults"] or health["indexFaults"] or health["index"] != "right":
        sys.exit(f"the store is not sound: {answer.stdout}")


def memo_files(home):
    folder = os.path.join(home, MEMO_FOLDER)
    return sorted(os.listdir(folder)) if os.path.isdir(folder) else []
