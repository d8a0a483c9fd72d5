"""What became of each mutant, kept from run to run; and what is said of the survivors."""

import json
import pathlib

root = pathlib.Path(__file__).resolve().parent.parent.parent
file = root / "build" / "mutation" / "results.json"
explanations = pathlib.Path(__file__).resolve().parent / "explained.txt"

DEAD = ("killed", "timed out")
COUNTED = (*DEAD, "survived")


def load():
    return json.loads(file.read_text()) if file.exists() else {}


def store(known):
    file.parent.mkdir(parents=True, exist_ok=True)
    new = file.with_suffix(".new")
    new.write_text(json.dumps(known, indent=0, ensure_ascii=False))
    new.replace(file)


def count(known, *outcomes):
    return sum(entry["outcome"] in outcomes for entry in known.values())


def score(known):
    """Per cent killed of those that compile to other code."""
    counted = count(known, *COUNTED)
    return 100 * count(known, *DEAD) / counted if counted else 100


def survivors(known):
    return [name for name, entry in known.items() if entry["outcome"] == "survived"]


def explained():
    """The reason for each mutant that is known to change nothing that can be observed: the lines in
    brackets are the reasons, those below each are the mutants."""
    reasons, reason = {}, ""
    for line in explanations.read_text().splitlines():
        if line.startswith("["):
            reason = line.strip("[]")
        elif line:
            reasons[line] = reason
    return reasons


def unexplained(known):
    reasons = explained()
    return [name for name in survivors(known) if name not in reasons]
