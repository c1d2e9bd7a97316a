"""Runs the shell on a terminal: Tab completes, the history comes back, quit leaves, and the history file is kept.

Called with the program and a session file.
"""
import os
import pty
import select
import sys
import tempfile
import time

PATIENCE = 20  # seconds


class Terminal:
    def __init__(self, *command):
        self.shown = ""
        self.child, self.side = pty.fork()
        if self.child == 0:
            os.environ["TERM"] = "xterm"
            os.execv(command[0], command)

    def await_text(self, text):
        """Reads until the text is shown, and forgets what came before its end."""
        end = time.monotonic() + PATIENCE
        while text not in self.shown:
            ready, _, _ = select.select([self.side], [], [], max(0, end - time.monotonic()))
            assert ready, f"{text!r} is not shown, but {self.shown!r}"
            self.shown += os.read(self.side, 4096).decode()
        self.shown = self.shown.split(text, 1)[1]

    def write(self, text):
        os.write(self.side, text.encode())

    def await_end(self):
        return os.waitstatus_to_exitcode(os.waitpid(self.child, 0)[1])


def main(program, display):
    with tempfile.TemporaryDirectory() as folder:
        history = os.path.join(folder, "history")
        terminal = Terminal(program, "--history", history, display)
        terminal.await_text("tst> ")
        terminal.write("ret\t\n")
        terminal.await_text("Result 0: parsed")
        terminal.await_text("tst> ")
        terminal.write("airs\t(2).boa\t\n")
        terminal.await_text("BoardPoint  PAR")
        terminal.await_text("tst> ")
        terminal.write("AirSegments(1).b\t\t")
        terminal.await_text("AirSegments(1).BaggageAllowance")
        terminal.await_text("AirSegments(1).BoardPoint")
        terminal.write("oa\t\n")
        terminal.await_text("BoardPoint  LON")
        terminal.await_text("tst> ")
        terminal.write("\x1b[A\x1b[A\n")  # two lines back
        terminal.await_text("BoardPoint  PAR")
        terminal.await_text("tst> ")
        terminal.write("quit\n")
        assert terminal.await_end() == 0
        with open(history, encoding="utf-8") as lines:
            assert "AirSegments(2).BoardPoint\n" in lines.read().replace("\\040", " ")


main(*sys.argv[1:])
