#!/usr/bin/env python3
"""Whether every text of a .ts file is translated and the translation fits it: check-translation.py FILE.

A translation has the places (%1, %n, %L1) and markup of its text, ends and begins as it does, and has a letter for Alt where
the text has one."""
import re
import sys
import xml.etree.ElementTree as ElementTree

PLACE = re.compile(r"%L?\d+|%L?n")
MARKUP = re.compile(r"</?(?:a|b|body|br|html|i|p|small|span|table|td|tr)\b[^<>]*>|&[a-z]+;")
LETTER = re.compile(r"&(?=[^&\s;])")
ENDS = (":", "…", "...", "?", "!", ".")


def letters(text):
    """How many letters for Alt the text marks; "&&" is an ampersand, and rich text has "&amp;"."""
    return 0 if MARKUP.search(text) else len(LETTER.findall(text.replace("&&", "")))


def end(text):
    text = text.split("\t")[0].rstrip()
    return next((sign for sign in ENDS if text.endswith(sign)), "")


def blanks(text):
    return text[: len(text) - len(text.lstrip())], text[len(text.rstrip()) :]


def file_patterns(text):
    return sorted(re.findall(r"\([^()]*\*[^()]*\)", text))


def faults(source, translation):
    rules = (
        ("places", sorted(PLACE.findall(source)), sorted(PLACE.findall(translation))),
        ("markup", sorted(MARKUP.findall(source)), sorted(MARKUP.findall(translation))),
        ("letters for Alt", letters(source), letters(translation)),
        ("end", end(source), end(translation)),
        ("blanks at the ends", blanks(source), blanks(translation)),
        ("tabulators", source.count("\t"), translation.count("\t")),
        ("patterns of files", file_patterns(source), file_patterns(translation)),
    )
    return [f"{name}: {theirs} in place of {ours}" for name, ours, theirs in rules if ours != theirs]


def messages(path):
    for context in ElementTree.parse(path).getroot().findall("context"):
        for message in context.findall("message"):
            translation = message.find("translation")
            forms = [form.text or "" for form in translation.findall("numerusform")] or [translation.text or ""]
            source = message.find("source").text or ""
            yield context.find("name").text, source, forms, translation.get("type") == "unfinished"


def main(path):
    wrong = count = 0
    for context, source, forms, is_unfinished in messages(path):
        count += 1
        found = ["not translated"] if is_unfinished or not all(forms) else []
        if not found:
            found = [fault for form in forms for fault in faults(source, form)]
        for fault in found:
            print(f"{path}: {context}: {source!r}: {fault}", file=sys.stderr)
        wrong += bool(found)
    print(f"{count} texts, {wrong} of them with faults")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
