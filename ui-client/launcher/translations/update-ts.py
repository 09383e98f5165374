#!/usr/bin/env python3
"""Rebuilds the twenty catalogues (<code>.ts) from the string table.

    ui-client/launcher/translations/update-ts.py [--check]

Every catalogue gets one message per distinct English text of
../locale/strings.tsv, in the context "global", in the order the texts first
appear in the table. Translations already present in a catalogue are kept, so
translators work in the .ts files and run this script whenever the table
changes. A text that is new gets its English text as a finished translation,
which lrelease ships as is; translate it by editing the message. A message
whose English text has left the table is kept as "vanished" (lrelease skips
it), so that its translation can be reused when the text is merely reworded.

Two things are not up to translators and are always rewritten: the launcher's
own rows (the product name and the two progress texts) and the "enu"
catalogue, which translates every text to itself.

--check writes nothing and fails when a catalogue is not what it would write.
"""

import os
import sys
import xml.etree.ElementTree as ET

HERE = os.path.dirname(os.path.abspath(__file__))
TABLE = os.path.join(HERE, "..", "locale", "strings.tsv")

# The catalogues, named by language code. They carry no language attribute:
# lrelease would then add plural rules, and no text of the table has plural
# forms, so a catalogue holds only its messages.
LANGUAGES = (
    "chs", "cht", "csy", "dan", "enu", "fre", "ger", "hun", "ita", "jpn",
    "krn", "nld", "nor", "plk", "ptb", "ptg", "rus", "spn", "sve", "trk",
)

PRODUCT = "Nimbulo Pelora"
READY = "Nimbulo Pelora is ready."
PREPARING = "Nimbulo Pelora is initializing..."

# The texts the launcher itself shows while it installs the client.
LAUNCHER = {
    "chs": ("Nimbulo Pelora 已就绪。", "Nimbulo Pelora 正在初始化..."),
    "cht": ("Nimbulo Pelora 準備完成", "Nimbulo Pelora 準備中..."),
    "csy": ("Nimbulo Pelora je připravena.", "Nimbulo Pelora se inicializuje..."),
    "dan": ("Nimbulo Pelora er klar.", "Nimbulo Pelora initialiserer..."),
    "enu": ("Nimbulo Pelora is ready.", "Nimbulo Pelora is initializing..."),
    "fre": ("Nimbulo Pelora est prêt.", "Nimbulo Pelora est en cours d'initialisation..."),
    "ger": ("Nimbulo Pelora ist bereit.", "Nimbulo Pelora wird initialisiert ..."),
    "hun": ("A Nimbulo Pelora készen áll.", "A Nimbulo Pelora inicializálása folyamatban..."),
    "ita": ("Nimbulo Pelora pronta.", "Nimbulo Pelora sta inizializzando..."),
    "jpn": ("Nimbulo Pelora は準備完了です。", "Nimbulo Pelora は初期化中です。"),
    "krn": ("Nimbulo Pelora 사용 준비가 되었습니다.", "Nimbulo Pelora 초기화 중..."),
    "nld": ("Nimbulo Pelora is gereed.", "Nimbulo Pelora is bezig met initialisatie..."),
    "nor": ("Nimbulo Pelora er klar.", "Nimbulo Pelora starter opp..."),
    "plk": ("Aplikacja Nimbulo Pelora jest gotowa.", "Aplikacja Nimbulo Pelora jest inicjowana..."),
    "ptb": ("O Nimbulo Pelora está pronto.", "O Nimbulo Pelora está sendo inicializado..."),
    "ptg": ("Nimbulo Pelora pronta.", "Nimbulo Pelora a iniciar..."),
    "rus": ("Nimbulo Pelora готов.", "Nimbulo Pelora выполняет инициализацию..."),
    "spn": ("Nimbulo Pelora está lista.", "Nimbulo Pelora se está inicializando..."),
    "sve": ("Nimbulo Pelora är klar.", "Nimbulo Pelora initialiserar..."),
    "trk": ("Nimbulo Pelora hazır.", "Nimbulo Pelora başlıyor..."),
}


def read_table():
    """The distinct English texts in order of first appearance."""
    texts = []
    seen = set()
    with open(TABLE, encoding="utf-8") as f:
        for number, line in enumerate(f, 1):
            line = line.rstrip("\r\n")
            if not line or line.startswith("#"):
                continue
            fields = line.split("\t")
            if len(fields) != 3:
                sys.exit(f"{TABLE}:{number}: expected id, key and text separated by tabs")
            text = fields[2]
            if text not in seen:
                seen.add(text)
                texts.append(text)
    return texts


def read_catalogue(path):
    """source -> (translation, type) of the context "global", in file order."""
    messages = {}
    if not os.path.exists(path):
        return messages
    root = ET.parse(path).getroot()
    for context in root.iter("context"):
        if context.findtext("name") != "global":
            continue
        for message in context.iter("message"):
            source = message.findtext("source") or ""
            node = message.find("translation")
            translation = (node.text or "") if node is not None else ""
            kind = node.get("type", "") if node is not None else ""
            messages[source] = (translation, kind)
    return messages


def escape(text):
    # The same entities lupdate writes, so that both tools give the same file.
    return (text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")
            .replace('"', "&quot;").replace("'", "&apos;"))


def render(code, texts, old):
    fixed = {PRODUCT: PRODUCT, READY: LAUNCHER[code][0], PREPARING: LAUNCHER[code][1]}
    entries = []
    for source in texts:
        if code == "enu":
            entries.append((source, source, ""))
        elif source in fixed:
            entries.append((source, fixed[source], ""))
        elif source in old and old[source][0]:
            translation, kind = old[source]
            # A text back in the table revives its old translation.
            entries.append((source, translation, "" if kind in ("vanished", "obsolete") else kind))
        else:
            entries.append((source, source, ""))
    current = set(texts)
    for source, (translation, kind) in old.items():
        if source not in current and code != "enu" and translation and translation != source:
            entries.append((source, translation, "vanished"))

    out = ['<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE TS>",
           '<TS version="2.1" sourcelanguage="en_US">',
           "<context>", "    <name>global</name>"]
    for source, translation, kind in entries:
        attr = f' type="{kind}"' if kind else ""
        out += ["    <message>",
                f"        <source>{escape(source)}</source>",
                f"        <translation{attr}>{escape(translation)}</translation>",
                "    </message>"]
    out += ["</context>", "</TS>", ""]
    return "\n".join(out)


def main():
    check = "--check" in sys.argv[1:]
    texts = read_table()
    stale = []
    for code in LANGUAGES:
        path = os.path.join(HERE, code + ".ts")
        content = render(code, texts, read_catalogue(path))
        old = open(path, encoding="utf-8").read() if os.path.exists(path) else None
        if content == old:
            continue
        if check:
            stale.append(code)
        else:
            with open(path, "w", encoding="utf-8", newline="\n") as f:
                f.write(content)
            print(f"wrote {code}.ts")
    if stale:
        sys.exit("out of date: " + ", ".join(stale) + " (run update-ts.py)")
    print(f"{len(texts)} messages in each of {len(LANGUAGES)} catalogues")


if __name__ == "__main__":
    main()
