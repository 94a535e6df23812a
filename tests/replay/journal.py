"""Reads a journal's records."""
import json


def handle_of(text):
    return int(text, 16)


def read(path):
    """The records of a journal; a last line that was cut off is left out."""
    text = path.read_text(encoding="utf-8-sig")
    lines = text.split("\n")
    records = []
    for number, line in enumerate(lines, 1):
        if line.strip():
            try:
                records.append(json.loads(line))
            except ValueError:
                if number < len(lines):
                    raise
    return records
