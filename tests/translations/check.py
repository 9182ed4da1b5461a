#!/usr/bin/env python3
"""All seven languages are complete: every text of the sources has a finished translation in each, nothing else stands
there, and no placeholder was lost or added on the way."""
import glob
import os
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

LANGUAGES = {"en", "zh_CN", "ge", "fr", "ja", "hu", "ru"}


def entries(path):
    """(context, source, comment) -> (translation, type) of a file."""
    found = {}
    for context in ElementTree.parse(path).getroot().findall("context"):
        for message in context.findall("message"):
            translation = message.find("translation")
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment"))
            found[key] = (translation.text or "", translation.get("type"))
    return found


def placeholders(text):
    return sorted(re.findall(r"%\d", text))


def main(top):
    faults = []
    files = {os.path.basename(path)[len("zentra_"):-len(".ts")]: path
             for path in glob.glob(top + "/resources/lang/zentra_*.ts")}
    if set(files) != LANGUAGES:
        faults.append("languages: %s instead of %s" % (sorted(files), sorted(LANGUAGES)))
    with tempfile.TemporaryDirectory() as scratch:
        for language, path in sorted(files.items()):
            present = entries(path)
            updated = shutil.copy(path, scratch)
            subprocess.run([top + "/scripts/update-translations", updated], check=True)
            wanted = entries(updated)
            for key in wanted.keys() - present.keys():
                faults.append("%s: not in the file: %r" % (language, key))
            for key in present.keys() - wanted.keys():
                faults.append("%s: no longer used: %r" % (language, key))
            for key, (translation, kind) in present.items():
                if kind or not translation.strip():
                    faults.append("%s: %s: %r" % (language, kind or "empty", key))
                elif placeholders(key[1]) != placeholders(translation):
                    faults.append("%s: placeholders of %r differ in %r" % (language, key[1], translation))
            if len(present) < 100:
                faults.append("%s: only %d entries; lupdate found nothing?" % (language, len(present)))
    print("\n".join(faults) if faults else "%d languages complete" % len(files))
    if faults:
        print("Run scripts/update-translations and fill in what is unfinished.")
    return 1 if faults else 0


sys.exit(main(sys.argv[1]))
