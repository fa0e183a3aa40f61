"""What the scripts round the catalogues of i18n/ share. Source texts are Simplified Chinese."""
import os
import shutil
import subprocess
import xml.etree.ElementTree as ElementTree

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))

# Code of the program, and the name that Qt knows the language by (it decides the number of plural forms).
LANGUAGES = {"hant": "zh_TW", "en": "en_US", "ja": "ja_JP", "ko": "ko_KR", "ru": "ru_RU", "de": "de_DE", "fr": "fr_FR",
             "es": "es_ES", "pt": "pt_BR", "ar": "ar_EG", "pl": "pl_PL"}
SOURCE_LANGUAGE = "zh_CN"
FOLDERS = ["platform", "tags", "lyrics", "engine", "library", "dsp", "output", "playback", "net", "maintenance", "ui", "app"]
QT_TOOL_FOLDERS = ["/usr/lib/qt6/bin", "/usr/lib64/qt6/bin"]


def path_of(code, root=ROOT):
    return os.path.join(root, "i18n", f"kelp_{code}.ts")


def qt_tool(name):
    """The path of a program of Qt 6, or None. One on PATH may be that of an older Qt, so it comes last."""
    for folder in QT_TOOL_FOLDERS:
        candidate = os.path.join(folder, name)
        if os.access(candidate, os.X_OK):
            return candidate
    return shutil.which(f"{name}6") or shutil.which(name)


def lupdate(ts, qt_language, root=ROOT):
    """Brings the file up to date with the sources; returns what went wrong, or an empty text."""
    folders = [folder for folder in FOLDERS if os.path.isdir(os.path.join(root, folder))]
    command = [qt_tool("lupdate"), "-silent", "-no-obsolete", "-locations", "none", "-source-language", SOURCE_LANGUAGE,
               "-target-language", qt_language, "-I", root, *folders, "-ts", ts]
    done = subprocess.run(command, cwd=root, capture_output=True, text=True)
    return "" if done.returncode == 0 else done.stderr.strip() or f"lupdate ended with {done.returncode}"


class Row:
    """One text of a catalogue."""

    def __init__(self, context, message):
        self.message = message
        self.context = context
        self.source = text_of(message.find("source"))
        self.comment = text_of(message.find("comment"))
        self.numerus = message.get("numerus") == "yes"
        element = message.find("translation")
        self.state = element.get("type", "") if element is not None else "unfinished"
        forms = element.findall("numerusform") if element is not None else []
        self.forms = [text_of(form) for form in forms] if self.numerus else [text_of(element)]

    @property
    def key(self):
        return self.context, self.source, self.comment

    def fill(self, forms):
        element = self.message.find("translation")
        element.attrib.pop("type", None)
        if self.numerus:
            for child, text in zip(element.findall("numerusform"), forms):
                child.text = text
        else:
            element.text = forms[0]


def text_of(element):
    return (element.text or "") if element is not None else ""


def read_rows(ts):
    """The parsed file and its rows. Raises OSError or ElementTree.ParseError."""
    tree = ElementTree.parse(ts)
    rows = [Row(text_of(context.find("name")), message)
            for context in tree.getroot().findall("context") for message in context.findall("message")]
    return tree, rows


def write_rows(tree, ts):
    """Writes in the form that Qt's own tools write, so that a later update changes only what it must."""
    # Qt names no entity in text but these, and writes quotation marks and apostrophes as entities too.
    body = ElementTree.tostring(tree.getroot(), encoding="unicode")
    with open(ts, "w", encoding="utf-8") as file:
        file.write('<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n' + body + "\n")
    subprocess.run([qt_tool("lconvert"), "-i", ts, "-o", ts, "-locations", "none"], check=True, capture_output=True)


def unescape(field):
    """A field of a rows file: \\n is a line end, \\t a tab, \\\\ a backslash."""
    out, rest = [], iter(field)
    for character in rest:
        if character != "\\":
            out.append(character)
            continue
        following = next(rest, "")
        out.append({"n": "\n", "t": "\t", "\\": "\\"}.get(following, "\\" + following))
    return "".join(out)


def read_tsv(path):
    """Yields (line number, context, source, forms): context, tab, source, tab, translation, a tab between plural forms."""
    with open(path, encoding="utf-8") as file:
        for number, line in enumerate(file, 1):
            line = line.rstrip("\n")
            if not line.strip() or line.startswith("#"):
                continue
            fields = [unescape(field) for field in line.split("\t")]
            if len(fields) < 3:
                raise ValueError(f"{path}:{number}: a row has a context, a source and a translation, with tabs between them")
            yield number, fields[0], fields[1], fields[2:]
