"""A copy of the sources with a build of its own, where one mutant at a time is tried."""

import fnmatch
import hashlib
import json
import os
import pathlib
import resource
import shlex
import shutil
import subprocess
import sys

root = pathlib.Path(__file__).resolve().parent.parent.parent
folder = root / "build" / "mutation"
tree = folder / "tree"
build = folder / "build"

MEMORY = 4 << 30
WALL_CLOCK = 600  # seconds; what counts is the processor's time, below


def tracked():
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"],
                            cwd=root, check=True, capture_output=True, text=True)
    return [name for name in listed.stdout.splitlines() if (root / name).is_file()]


class Workshop:
    def __init__(self):
        self.names = tracked()
        self.seconds = {}  # of the processor, for each program unbroken
        self.codes = {}

    def files(self, suite):
        return [name for name in self.names if name.endswith(("cpp", "hpp"))
                and any(fnmatch.fnmatch(name, pattern) for pattern in suite.files)]

    def source(self, file):
        return (root / file).read_text()

    def open(self, suites):
        """Brings the copy up to date and sees that every test passes while nothing is broken."""
        self._copy()
        if not (build / "build.ninja").exists():
            subprocess.run(
                ["cmake", "-S", tree, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                 "-DCMAKE_CXX_FLAGS=-D_GLIBCXX_ASSERTIONS -w", "-DCMAKE_CXX_FLAGS_DEBUG=-O0",
                 "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold", "-DNURVA_WERROR=OFF"],
                check=True, stdout=subprocess.DEVNULL)
        for program, tests in dict.fromkeys(p for suite in suites for p in suite.programs):
            if not self._built(program, jobs=os.cpu_count(), stdout=None):
                sys.exit(f"{program} does not build")
            before = resource.getrusage(resource.RUSAGE_CHILDREN)
            if self._run(program, tests, WALL_CLOCK) != "survived":
                sys.exit(f"{program} fails while nothing is broken")
            after = resource.getrusage(resource.RUSAGE_CHILDREN)
            self.seconds[program, tests] = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime

    def fate(self, suite, mutant):
        """killed, timed out, does not compile, same code, or survived"""
        path = tree / mutant.file
        original = path.read_text()
        end = mutant.offset + len(mutant.before)
        path.write_text(original[: mutant.offset] + mutant.after + original[end:])
        try:
            outcome = self._outcome(suite)
            code = self._code(mutant.file) if outcome == "survived" else None
        finally:
            path.write_text(original)
        return "same code" if code and code == self._plain_code(mutant.file) else outcome

    def _outcome(self, suite):
        for program, tests in suite.programs:
            if not self._built(program):
                return "does not compile"
            outcome = self._run(program, tests, int(self.seconds[program, tests] * 5) + 5)
            if outcome != "survived":
                return outcome
        return "survived"

    def _copy(self):
        wanted = set(self.names)
        for name in wanted:
            target = tree / name
            data = (root / name).read_bytes()
            if not target.exists() or target.read_bytes() != data:
                target.parent.mkdir(parents=True, exist_ok=True)
                target.write_bytes(data)
                shutil.copymode(root / name, target)
        for path in [path for path in tree.rglob("*") if path.is_file()]:
            if str(path.relative_to(tree)) not in wanted:
                path.unlink()

    def _built(self, program, jobs=1, stdout=subprocess.DEVNULL):
        environment = dict(os.environ, CCACHE_DISABLE="1")
        command = ["ninja", "-C", build, "-j", str(jobs), program]
        return subprocess.run(command, env=environment, stdout=stdout, stderr=stdout).returncode == 0

    def _run(self, program, tests, seconds):
        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 1))
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        home = folder / "home"
        shutil.rmtree(home, ignore_errors=True)
        home.mkdir(parents=True)
        environment = dict(os.environ, HOME=str(home), TMPDIR=str(home))
        command = [build / "bin" / program, "--gtest_fail_fast", "--gtest_brief=1", f"--gtest_filter={tests}"]
        try:
            ran = subprocess.run(command, cwd=home, env=environment, preexec_fn=limit, timeout=WALL_CLOCK,
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        except subprocess.TimeoutExpired:
            return "timed out"
        # 24 and 9: ended for the time it took.
        return {0: "survived", -24: "timed out", -9: "timed out"}.get(ran.returncode, "killed")

    # A mutant of which the optimizing compiler makes the very same code is none.

    def _plain_code(self, file):
        if file not in self.codes:
            self.codes[file] = self._code(file)
        return self.codes[file]

    def _code(self, file):
        """What identifies the code made of a source; nothing for a header, of which none is made."""
        for entry in json.loads((build / "compile_commands.json").read_text()):
            if entry["file"] == str(tree / file):
                words = shlex.split(entry["command"])
                command = [*words[: words.index("-o")], "-O2", "-o", folder / "code.o", "-c", tree / file]
                subprocess.run(command, cwd=entry["directory"], check=True,
                               env=dict(os.environ, CCACHE_DISABLE="1"))
                return hashlib.sha256((folder / "code.o").read_bytes()).hexdigest()
        return None
