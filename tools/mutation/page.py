"""The results as tables."""

import datetime

from mutation import results


def row(name, known, total):
    counted = results.count(known, *results.COUNTED)
    score = f"{results.score(known):.1f} %" if counted else "not tried"
    return (
        f"| {name} | {total} | {len(known)} | {results.count(known, 'does not compile')} "
        f"| {results.count(known, 'same code')} | {results.count(known, 'killed')} "
        f"| {results.count(known, 'timed out')} | {results.count(known, 'survived')} "
        f"| {score} |"
    )


def table(known, every):
    """`every`: all the mutants that there are, tried or not, with their suites."""
    rows = [
        "| suite | there are | tried | do not compile | same code | killed | timed out | survived | killed of those that count |",
        "|---|--:|--:|--:|--:|--:|--:|--:|--:|",
    ]
    for suite in dict.fromkeys(suite.name for suite, _ in every):
        of_suite = {name: entry for name, entry in known.items() if entry["suite"] == suite}
        rows.append(row(suite, of_suite, sum(s.name == suite for s, _ in every)))
    rows.append(row("all", known, len(every)))
    return "\n".join(rows)


def write(known, every):
    names = {mutant.name() for _, mutant in every}
    current = {name: entry for name, entry in known.items() if name in names}
    reasons = results.explained()
    surviving = results.survivors(current)
    text = f"""# Does a test notice?

Written by `tools/mutate --page` on {datetime.date.today()}. The sources are broken in one place at a time:
an operator, a constant, a condition, a call or a returned value is changed or left out. Then the tests
of that room run. A mutant counts if it compiles, and to other code than the source itself. Not all have
been tried: they are drawn by lot, most of them from sources, since a header's takes many times as long.

{table(current, every)}

## The survivors

"""
    for reason in dict.fromkeys(reasons.values()):
        those = [name for name in surviving if reasons.get(name) == reason]
        if those:
            text += f"**{reason}** ({len(those)})\n\n```\n" + "\n".join(those) + "\n```\n\n"
    rest = [name for name in surviving if name not in reasons]
    if rest:
        text += "**Not explained, so a test is missing**\n\n```\n" + "\n".join(rest) + "\n```\n"
    (results.root / "docs" / "mutation.md").write_text(text.rstrip() + "\n")
