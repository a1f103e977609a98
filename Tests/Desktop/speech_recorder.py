#!/usr/bin/python3
"""A voice for speech-dispatcher that writes what it is given into a file instead of speaking.

speech_recorder.py RECORD   appends a line of JSON for each text: [number, text] when it begins, and
                            [number, null] when it has been spoken to its end

It takes about as long as a voice at a fast rate. A text that another one interrupts has no end.
"""

import html
import json
import re
import select
import sys

SECONDS_PER_LETTER = 0.005


def reply(*lines):
    sys.stdout.write("".join(line + "\n" for line in lines))
    sys.stdout.flush()


def block():
    """The lines that follow a command, up to a full stop."""
    lines = []
    while (line := sys.stdin.buffer.raw.readline()) not in (b".\n", b""):
        # A full stop at the beginning of a line is doubled.
        lines.append(line.decode().removeprefix("."))
    return "".join(lines)


def plain(markup):
    return " ".join(html.unescape(re.sub("<[^>]*>", "", markup)).split())


class Recorder:
    def __init__(self, record):
        self._record = record
        self._count = 0
        self._letters = 0

    def run(self):
        while True:
            wait = self._letters * SECONDS_PER_LETTER if self._letters else None
            readable, _, _ = select.select([sys.stdin], [], [], wait)
            if not readable:
                self._finish("702 END")
            elif (command := sys.stdin.buffer.raw.readline().decode().strip()) in ("", "QUIT"):
                reply("210 OK QUIT")
                return
            else:
                self._obey(command)

    def _obey(self, command):
        if command in ("SPEAK", "CHAR", "KEY", "SOUND_ICON"):
            reply("202 OK RECEIVING MESSAGE")
            text = plain(block())
            reply("200 OK SPEAKING", "701 BEGIN")
            self._count += 1
            self._letters = len(text)
            self._write(text)
        elif command in ("STOP", "PAUSE"):
            if self._letters:
                self._letters = 0
                reply("703 STOP")
        elif command in ("SET", "AUDIO", "LOGLEVEL"):
            reply("207 OK RECEIVING SETTINGS")
            block()
            reply("203 OK SETTINGS RECEIVED")
        elif command == "INIT":
            reply("299-ready", "299 OK LOADED SUCCESSFULLY")
        elif command == "LIST VOICES":
            reply("200-recorder\ten\tnone", "200 OK VOICE LIST SENT")

    def _finish(self, event):
        self._letters = 0
        self._write(None)
        reply(event)

    def _write(self, text):
        self._record.write(json.dumps([self._count, text]) + "\n")
        self._record.flush()


if __name__ == "__main__":
    with open(sys.argv[1], "a") as record:
        Recorder(record).run()
