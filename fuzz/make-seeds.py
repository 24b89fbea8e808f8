#!/usr/bin/env python3
"""Writes the seed inputs of every fuzz target into OUT/<target>/: the sample files, and files
made from them that reach the corners of each format (damaged blocks, deep nesting, over-long
lines, missing line ends, odd numbers). The committed corpora began as these seeds, minimised
with the fuzzers' -merge=1.

    fuzz/make-seeds.py OUT
"""
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
SAMPLE = os.path.join(HERE, "..", "sample")


def sample(name):
    with open(os.path.join(SAMPLE, name), "rb") as f:
        return f.read()


def lines(*texts):
    return b"".join(t.encode("latin-1") + b"\r\n" for t in texts)


def tokenizer_seeds():
    # delimiter, script length, script, line (script bytes: 0 number, 1 string, 2 rest,
    # 3 step, 4 + 8n seek field n, 5 + 8n position n, 6 prefix, 7 past the end)
    def seed(delimiter, script, line):
        return bytes([ord(delimiter), len(script)]) + bytes(script) + line.encode("latin-1")

    return {
        "oob-unit": seed(" ", [0, 3, 0, 3, 1, 3, 1, 3, 0, 3, 0, 3, 0, 3, 2],
                         "\t\tU 40 9 Guards Breechloader 1 0 0 1st Foot Guards  "),
        "oob-seek": seed(" ", [4 + 8, 0, 4 + 8 * 5, 0, 6, 7],
                         "  Word   12\t\t3  "),
        "inf-kind": seed("|", [0, 3, 0, 3, 1, 3, 1, 3, 2], "\t7|9|A |Army|"),
        "inf-empty-fields": seed("|", [0, 3, 1, 3, 1], "||4||0|two words|text|"),
        "key": seed(".", [0, 3, 0, 3, 0, 3, 0, 3], "2.1.3."),
        "numbers": seed(" ", [0, 3, 0, 3, 0, 3, 0, 3, 0],
                        "-7 - 0.25 1.5.3 12abc 99999999999999999999 -3.7"),
        "long": seed(" ", [2, 4 + 8 * 30, 1, 7], " ".join(["field"] * 60)),
        "tabs-only": seed("\t", [0, 1, 2], "\t\t\ta\t\tb\t"),
    }


def target_file_seeds():
    inf = sample("valdoria.inf")
    lf = inf.replace(b"\r\n", b"\n")
    variant = inf.replace(b"\t3|0|1|0|1|0.5|-9|9|2|", b"\t3|0|1|0|1|0.5|-9|9|12|", 1)
    reserved = inf.replace(b"\t3|0|1|0|1|0.5|-9|9|2|", b"\t3|0|1|0|0|1e5|-40000|70000|2|", 1)
    return {
        "valdoria": inf,
        "valdoria-lf": lf,
        "many-countries": variant,
        "odd-numbers": reserved,
        "cut-in-types": inf[: inf.index(b"</C>") + 200],
        "header-only": inf[: inf.index(b"</A>")],
        "empty-sections": lines("\tT|", "\t0|0|0|0|0|0|", "\t1|1|", "\t3|0|0|0|0|0|0|0|0|",
                                "", "</A>", "</B>", "</C>", "</D>", "</E>", "\tx.tpl|") + b"</F>",
        # Written back with two tabs of indentation, the line grows past what the reader takes.
        "long-weapon-line": inf.replace(b"\t\tMusket|0|Smoothbore musket|",
                                        b"Musket|0|" + b"m" * 240 + b"|", 1),
        "blank-type-and-weapon": inf.replace(b"\t\tMusket|0|Smoothbore musket|\r\n",
                                             b"\t\t|\r\n", 1).replace(b"</C>\r\n",
                                                                      b"</C>\r\n\t6\r\n\t\tx|1|y|\r\n\t\t</W>\r\n", 1),
        "weapons-without-end": lines("\tT|", "", "", "", "", "</A>", "</B>", "</C>",
                                     "\t1|LineInf|0|Line|", "\t\tMusket|0|Musket|",
                                     "\t\tRifle|0.1|Rifle|"),
    }


def oob_seeds():
    nested = ["3"]
    for depth in range(12):
        nested.append("\t" * depth + "B Level %d" % depth)
        nested.append("\t" * (depth + 1) + "Begin")
    nested.append("\t" * 12 + "U 10 5 LineInf Musket 1 0 1 Deep Battalion")
    return {
        "valdoria": sample("valdoria.oob"),
        "frontier": sample("frontier.oob"),
        "frontier-lf": sample("frontier.oob").replace(b"\r\n", b"\n"),
        "unit-with-block": lines("3", "A Army", "\tBegin", "\tU 10 5 LineInf Musket 1 0 1 Bn",
                                 "\t\tBegin", "\t\tL 1 5 0 Stray Leader", "\t\tEnd",
                                 "\tS 5 5 Train", "\tEnd"),
        "nested-too-deep": lines(*nested),
        "more-ends": lines("3", "End", "End", "B Brigade", "\tBegin", "\tEnd", "\tEnd",
                           "DEP 6 0 Depot"),
        "unknown-records": lines("3", "U 10 5 Hussars Lance 1 0 1 Unknown Type",
                                 "U 10 5 LineInf Lance 1 0 1 Unknown Weapon",
                                 "U 10 5 Hussars Lance 1 0 1 Known Now", "GB 3 4 Gun12 1 River",
                                 "U", "U 1", "L", "S -5", "X unknown kind", "Be", "</T>"),
        "numbers": lines("3", "U 99999 -70000 LineInf Musket 4294967297 0 -1 Wide",
                         "L 300 -1.9 1e9 Leader", "S 1.5.3 12abc Train",
                         "U - - LineInf Musket - - - Minus"),
        "long-lines": lines("3", "B " + "x" * 300, "\tBegin",
                            "\t" * 8 + "U 1 1 LineInf Musket 1 0 1 " + "y" * 240, "\tEnd"),
        "no-final-line-break": lines("3", "A Army", "\tBegin") + b"\tL 1 5 0 Last Leader",
        "bare-cr": b"3\rA Army\r\tBegin\r\tEnd\r",
    }


def workspace_seeds():
    return {
        "harnwick": sample("harnwick.txt"),
        "fresh": lines("New Order of Battle|", "new.oob|", "|", "new.inf|",
                       *["0|empty|"] * 5),
        "short": lines("Title|", "a.oob|", "a.bak|"),
        "odd-fields": lines("\t|Title with | bar|", "a\tb|", "||", "c.inf", "\t1|units.bmp|",
                            "1.9|faces.bmp|", "300||", "-1|x|y|", "|only path|"),
        "no-final-line-break": lines("T|", "o|", "b|", "t|", "1|u|", "1|f|", "1|i|", "1|c|")
        + b"1|a|",
        "lf-only": sample("harnwick.txt").replace(b"\r\n", b"\n"),
        # Written on Windows: backslashes, letter case, Windows-1252 names, odd parts.
        "windows-paths": lines("Spring|", "..\\SAMPLE\\Valdoria.OOB|", "\\\\|", "C:\\war\\x.inf|",
                               "1|/TMP\\..\\Tmp|", "1|G\xe9n\xe9raux\\faces.BMP|", "1|.\\.|",
                               "1|/|", "1|" + "..\\" * 60 + "|"),
        # -1 is written back as 255: the line grows past what the reader takes.
        "long-flag-line": lines("T|", "o|", "b|", "t|", "-1|" + "p" * 251),
    }


def template_seeds():
    tpl = sample("valdoria.tpl")
    two_tops = lines("U 10 5 LineInf Musket 1 0 1 First", "S 5 5 Second", "</T>")
    return {
        "first-at-root": bytes([0, 1, 0]) + tpl,
        "second-under-army": bytes([1, 3, 1]) + tpl,
        "first-under-unit": bytes([5, 0, 0]) + tpl,
        "past-the-last": bytes([3, 2, 5]) + tpl,
        "negative-ordinal": bytes([2, 9, 0xFF]) + tpl,
        "two-tops-after-sibling": bytes([1, 4, 0]) + two_tops,
        "no-end-tag": bytes([4, 1, 0]) + lines("B Brigade", "\tBegin", "\tL 1 1 1 L", "\tEnd"),
        "unbalanced": bytes([2, 1, 0]) + lines("Begin", "Begin", "U 1 1 LineInf Musket 1 0 1 U",
                                               "End", "End", "End", "L 1 1 1 After", "</T>"),
    }


def import_seeds():
    btl = sample("valdoria.btl")
    head = b"".join(btl.splitlines(keepends=True)[:9])
    return dict(
        [("valdoria-%d" % flags, bytes([flags]) + btl) for flags in range(6)]
        + [
            ("bad-keys", bytes([1]) + head + lines("1 99.99. 0 0 5", "1 1.1.1.1.1.1.1.1.1.1.1.1 0 0 5",
                                                   "1 0.0. 0 0 5", "1 -1.2 0 0 5", "1 . 0 0 5",
                                                   "1 1.2.2. 0 0 70000", "2 0 0 0 0 0 0 0 0 0 3",
                                                   "1.1.", "1.999.", "x", "1 2.1. 0 0 1")),
            ("list-past-end", bytes([2]) + head + lines("2 0 0 0 0 0 0 0 0 0 40000", "1.1.")),
            ("short", bytes([4]) + b"1\n2\n"),
        ]
    )


def main():
    out = sys.argv[1]
    for target, seeds in [("tokenizer", tokenizer_seeds()), ("target_file", target_file_seeds()),
                          ("oob", oob_seeds()), ("workspace", workspace_seeds()),
                          ("template", template_seeds()), ("import", import_seeds())]:
        folder = os.path.join(out, target)
        os.makedirs(folder, exist_ok=True)
        for name, data in seeds.items():
            with open(os.path.join(folder, name), "wb") as f:
                f.write(data)


if __name__ == "__main__":
    main()
