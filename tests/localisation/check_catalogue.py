#!/usr/bin/env python3
"""Checks one translation catalogue (a Qt .ts file) against the English one.

    check_catalogue.py ENGLISH.ts CATALOGUE.ts

Every finished translation must keep its English text's placeholders,
escapes, markup tags and leading and trailing spaces, and must not be the
English text itself unless that text stays the same in the language (see
SAME_EVERYWHERE and SAME_IN). A catalogue other than the English one must
translate every English text and nothing else. Prints one line per fault
naming the catalogue, the English text and what is wrong; exits 1 if there
is any fault, 2 if a file cannot be read.
"""
import collections
import os
import re
import sys
import xml.etree.ElementTree as ET

# Texts a finished translation may leave exactly as they are in English,
# compared without their "&" mnemonic and a final colon ("Status:" is
# "Status").
SAME_EVERYWHERE = {
    "Calderix Drive",  # product name
    "ID",  # abbreviation most catalogues keep
    "OK",  # kept as is by most languages' own button texts
}

# Per catalogue: English words that are also the usual word in the language.
SAME_IN = {
    "csy": {"Internet", "Port", "Proxy", "Proxy server", "Upgrade"},
    "dan": {"Port", "Proxy", "Status", "Type", "Version %1"},
    "deu": {"April", "August", "Information", "Name", "November", "Port",
            "Proxy", "September", "Status", "Version %1"},
    "esn": {"Error", "General", "Internet", "No", "Proxy"},
    "fra": {"Date", "Description", "Destination", "Internet", "Options",
            "Port", "Proxy", "Type", "Version %1"},
    "hun": {"Internet", "Port", "Proxy"},
    "ita": {"Computer", "File", "Internet", "No", "Password", "Proxy"},
    "nld": {"Help", "Proxy", "Status", "Type", "Upgrade"},
    "nor": {"Pause", "Port", "Proxy", "Status", "Type"},
    "plk": {"Folder", "Internet", "Port"},
    "ptb": {"Internet", "Proxy", "Status"},
    "ptg": {"Internet", "Proxy"},
    "sve": {"Information", "Port", "Proxy", "Status", "Version %1"},
}


def stays_the_same(code, source):
    word = source.replace("&", "").rstrip(":")
    return word in SAME_EVERYWHERE or word in SAME_IN.get(code, set())


# %% first so that it never starts a placeholder; then printf conversions
# with an argument position, Qt's %1..%99 and %n (each optionally %L...),
# and printf conversions without a position, whose order is their meaning.
# A width needs a flag before it so that Qt's "%1" never reads as one.
PLACEHOLDER = re.compile(
    r"(?P<percent>%%)"
    r"|(?P<any_order>%\d+\$[-+#0]*\d*(?:\.\d+)?[hlLqjzt]*[diouxXeEfFgGaAcsp]"
    r"|%L?\d+|%L?n)"
    r"|(?P<in_order>%(?:[-+#0]+\d*)?(?:\.\d+)?[hlLqjzt]*[diouxXeEfFgGaAcsp])")
ESCAPE = re.compile(r"\\.|[\n\t\r]")
TAG = re.compile(r"<(/?)([A-Za-z][A-Za-z0-9]*)(?:\s[^<>]*)?/?>")


def placeholders(text):
    """Returns (set of order-free placeholders, list of ordered ones)."""
    any_order, in_order = set(), []
    for m in PLACEHOLDER.finditer(text):
        if m.group("any_order"):
            any_order.add(m.group("any_order"))
        elif m.group("in_order"):
            in_order.append(m.group("in_order"))
    return any_order, in_order


def escapes(text):
    return collections.Counter(ESCAPE.findall(text))


def tags(text):
    return collections.Counter("<%s%s>" % (slash, name.lower()) for slash, name in TAG.findall(text))


def edges(text):
    """Returns the leading and the trailing white space."""
    stripped = text.strip()
    if not stripped:
        return text, ""
    start = text.index(stripped)
    return text[:start], text[start + len(stripped):]


def show(items):
    items = sorted(items.elements()) if isinstance(items, collections.Counter) else items
    shown = " ".join(repr(i)[1:-1] if i in ("\n", "\t", "\r") else i for i in items)
    return shown or "none"


def read_catalogue(path):
    """Returns (language, source language, messages); each message is
    (context, source, comment, translation type, [translation texts])."""
    root = ET.parse(path).getroot()
    messages = []
    for context in root.iter("context"):
        name = context.findtext("name", "")
        for message in context.iter("message"):
            translation = message.find("translation")
            if translation is None:
                texts, kind = [], "unfinished"
            else:
                forms = translation.findall("numerusform")
                texts = [f.text or "" for f in forms] if forms else [translation.text or ""]
                kind = translation.get("type", "finished")
            messages.append((name, message.findtext("source", ""),
                             message.findtext("comment", ""), kind, texts))
    return root.get("language", ""), root.get("sourcelanguage", ""), messages


def compare(source, text):
    """Returns what the translation text lost or changed of the source."""
    faults = []
    for what, pick in (("placeholders", placeholders), ("escapes", escapes), ("markup tags", tags)):
        want, got = pick(source), pick(text)
        if want != got:
            if what == "placeholders":
                want, got = sorted(want[0]) + want[1], sorted(got[0]) + got[1]
            faults.append("%s differ: English has %s, translation has %s"
                          % (what, show(want), show(got)))
    for side, want, got in zip(("leading", "trailing"), edges(source), edges(text)):
        if want != got:
            faults.append("%s spaces differ: English has %r, translation has %r" % (side, want, got))
    return faults


def check(english_path, path):
    """Returns the fault lines for the catalogue at path."""
    code = os.path.splitext(os.path.basename(path))[0]
    _, _, english = read_catalogue(english_path)
    language, source_language, messages = read_catalogue(path)
    is_english = language == source_language
    faults = []

    def fault(source, what):
        faults.append('%s: "%s": %s' % (os.path.basename(path), source, what))

    english_keys = {(c, s, n) for c, s, n, _, _ in english}
    keys = set()
    for context, source, comment, kind, texts in messages:
        keys.add((context, source, comment))
        if (context, source, comment) not in english_keys:
            fault(source, "is not in the English catalogue %s" % os.path.basename(english_path))
        if kind != "finished":
            if not is_english:
                fault(source, "translation is %s" % kind)
            continue
        for text in texts:
            if not text:
                fault(source, "translation is empty")
                continue
            for what in compare(source, text):
                fault(source, what)
            if not is_english and text == source and not stays_the_same(code, source):
                fault(source, "translation is the English text (not on the list of words that stay the same)")
    if not is_english:
        for context, source, comment in sorted(english_keys - keys):
            fault(source, "has no entry in this catalogue")
    return faults, len(messages)


def main(argv):
    if len(argv) != 3:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    try:
        faults, count = check(argv[1], argv[2])
    except (OSError, ET.ParseError) as e:
        print("check_catalogue: %s" % e, file=sys.stderr)
        return 2
    for line in faults:
        print(line)
    name = os.path.basename(argv[2])
    if faults:
        print("%s: %d fault(s) in %d texts" % (name, len(faults), count))
        return 1
    print("%s: %d texts, all consistent with their English text" % (name, count))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
