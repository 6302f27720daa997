#!/usr/bin/python3
"""Summarises the shipped JSON documents and compares the summary with shipped-data.golden.

With --update the script rewrites that file instead, so a review of the file shows every change of the data.
"""

import collections
import json
import pathlib
import sys

HERE = pathlib.Path(__file__).resolve().parent
CONFIG = HERE.parents[1] / "resources" / "config"


def unique(pairs):
    """Returns the pairs as a dictionary. Fails if a key occurs twice, because parsing would drop one value."""
    result = dict(pairs)
    assert len(result) == len(pairs), "duplicate key"
    return result


def document(name):
    return json.loads((CONFIG / name).read_text(encoding="utf-8"), object_pairs_hook=unique)


def launcher_lines():
    launcher = document("launcher_config.json")
    yield f"launcher_config {launcher['version']}"
    for group in launcher["hardwareGroups"]:
        yield "  " + " | ".join(group[key] for key in ("type", "name", "brand", "description"))
        for tool in group["tools"]:
            yield "    " + " | ".join(str(value) for value in tool.values())


def reference_lines():
    reference = document("cameras_reference.json")
    yield f"cameras_reference {reference['version']}"
    for row in reference["cameras"]:
        yield f"  {row['type']} | {row['model']} | {row['thumbnail']}"
    models = [row["model"] for row in reference["cameras"]]
    yield f"  {len(set(models))} models of {min(map(len, models))} to {max(map(len, models))} characters, " \
          f"{sum(' ' in model for model in models)} with a blank"
    for kind, count in sorted(collections.Counter(row["type"] for row in reference["cameras"]).items()):
        yield f"  {count} rows of type {kind}"


def compatibility_lines():
    table = document("halvex_tool_compatibility.json")
    cameras = table["cameras"]
    yield f"halvex_tool_compatibility {table['version']}"
    codes = {code.lower() for code in cameras}  # The launcher ignores the letter case of the codes.
    yield f"  {len(codes)} codes of {min(map(len, codes))} to {max(map(len, codes))} characters"
    for number, count in sorted(collections.Counter(len(set(entry["tools"])) for entry in cameras.values()).items()):
        yield f"  {count} entries with {number} tools"
    for tool, count in sorted(collections.Counter(t for entry in cameras.values() for t in entry["tools"]).items()):
        yield f"  {count} entries with {tool}"
    for code, entry in cameras.items():
        if "notes" in entry:
            yield f"  {code}: {entry['notes']}"


def main():
    lines = [*launcher_lines(), *reference_lines(), *compatibility_lines()]
    golden = HERE / "shipped-data.golden"
    if "--update" in sys.argv[1:]:
        golden.write_text("\n".join(lines) + "\n", encoding="utf-8")
        return 0
    expected = golden.read_text(encoding="utf-8").splitlines()
    different = [f"- {line}" for line in expected if line not in lines] \
        + [f"+ {line}" for line in lines if line not in expected]
    if lines != expected:
        print(*different, f"If this is intended: {sys.argv[0]} --update", sep="\n")
    return int(lines != expected)


if __name__ == "__main__":
    sys.exit(main())
