"""Changes the sources one place at a time and counts how many of the changes the tests notice.

See scripts/mutate --help.
"""

import argparse
import collections
import concurrent.futures
import dataclasses
import difflib
import json
import pathlib
import queue
import random
import re
import resource
import shutil
import subprocess
import sys
import threading

ROOT = pathlib.Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutation"

# From those that answer fast to those that take long; the tests beside the changed source run before all of them.
TESTS = ["core", "profile", "media", "device", "translation", "network", "fault", "inspect", "samples", "xml"]

# A change that makes a loop endless is noticed by these. Time of the processor, as the machine may be busy.
PROCESSOR_SECONDS = 10
MEMORY_BYTES = 4 << 30
WALL_SECONDS = 300

# In percent of the mutants.
LIMIT = 95

TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*)
    |(?P<directive>^[ ]*\#(?:[^\n]*\\\n)*[^\n]*)
    |(?P<string>\b(?:u8|u|U|L)?"(?:\\.|[^"\\])*"|"(?:\\.|[^"\\])*")
    |(?P<character>\b(?:u|U|L)?'(?:\\.|[^'\\])*'|'(?:\\.|[^'\\])*')
    |(?P<number>\b[0-9][\w.]*)
    |(?P<word>[A-Za-z_]\w*)
    |(?P<operator>::|->|\+\+|--|<<|>>|[-+*/=!<>|&^]=|&&|\|\||[^\s\w])""",
    re.MULTILINE | re.VERBOSE,
)

# Binary operators stand between spaces; those of templates, pointers and references do not.
OPERATORS = {
    "==": [("turned", "!=")],
    "!=": [("turned", "==")],
    "<": [("turned", ">="), ("boundary", "<=")],
    ">": [("turned", "<="), ("boundary", ">=")],
    "<=": [("turned", ">"), ("boundary", "<")],
    ">=": [("turned", "<"), ("boundary", ">")],
    "&&": [("logical", "||")],
    "||": [("logical", "&&")],
    "+": [("arithmetic", "-")],
    "-": [("arithmetic", "+")],
    "*": [("arithmetic", "/")],
    "/": [("arithmetic", "*")],
    "+=": [("arithmetic", "-=")],
    "*=": [("arithmetic", "+=")],
    "|=": [("arithmetic", "&=")],
    "^=": [("arithmetic", "|=")],
    "<<": [("arithmetic", ">>")],
    ">>": [("arithmetic", "<<")],
    "?": [("condition-false", "&& false ?"), ("condition-true", "|| true ?")],
}

NO_EXPRESSION = set(
    "break case class const constexpr continue default else enum explicit extern for friend if inline namespace private"
    " protected public return static static_assert struct template typedef using virtual while".split()
)


@dataclasses.dataclass(frozen=True)
class Mutation:
    path: str
    line: int
    column: int
    kind: str
    original: str
    mutated: str

    @property
    def id(self):
        return f"{self.path}:{self.line}:{self.column}:{self.kind}"

    @property
    def diff(self):
        lines = difflib.unified_diff(self.original.splitlines(), self.mutated.splitlines(), lineterm="", n=0)
        return "\n".join(list(lines)[2:])


def tokens_of(source):
    found = []
    for match in TOKEN.finditer(source):
        if match.lastgroup not in ("comment", "directive"):
            found.append((match.lastgroup, match.group(), match.start(), match.end()))
    return found


def closing(tokens, opening):
    """The index of the parenthesis that closes the one at the index `opening`."""
    depth = 0
    for index in range(opening, len(tokens)):
        depth += {"(": 1, ")": -1}.get(tokens[index][1], 0)
        if depth == 0:
            return index
    raise ValueError("unbalanced parentheses")


def statement_end(tokens, first):
    """The index of the semicolon of a statement that starts at the index `first`; None if it has none of its own."""
    depth = 0
    for index in range(first, len(tokens)):
        text = tokens[index][1]
        depth += {"(": 1, "{": 1, ")": -1, "}": -1}.get(text, 0)
        if depth < 0:
            return None
        if text == ";" and depth == 0:
            return index
    return None


def is_expression(statement):
    """Tells calls and assignments from declarations."""
    if statement[0][1] in NO_EXPRESSION or statement[-1][1] in ("default", "delete"):
        return False
    head = []
    for kind, text, _, _ in statement:
        if text in ("(", "=", "{"):
            break
        head.append(kind if kind == "word" else text)
    declares = any(after == "word" and before in ("word", ">", "&", "*") for before, after in zip(head, head[1:]))
    return not declares and len(statement) > 1


def mutations_of(path, source):
    tokens = tokens_of(source)
    found = []

    def add(kind, start, end, text):
        line = source.count("\n", 0, start) + 1
        column = start - source.rfind("\n", 0, start)
        mutated = source[:start] + text + source[end:]
        found.append(Mutation(path, line, column, kind, source, mutated))

    for index, (kind, text, start, end) in enumerate(tokens):
        if kind == "operator":
            if source[start - 1].isspace() and source[end].isspace():
                for name, replacement in OPERATORS.get(text, []):
                    add(name, start, end, replacement)
            elif text in ("++", "--"):
                add("arithmetic", start, end, "--" if text == "++" else "++")
        elif kind == "number":
            add("literal", start, end, f"({text} + 1)")
        elif kind == "string":
            add("literal", start, end, text[:-1] + 'X"')
        elif kind == "character":
            add("literal", start, end, text[: text.index("'")] + r"'\x01'")
        elif text in ("true", "false"):
            add("constant", start, end, "false" if text == "true" else "true")
        elif text in ("if", "while") and tokens[index + 1][1] == "(":
            last = closing(tokens, index + 1)
            condition = source[tokens[index + 1][3] : tokens[last][2]]
            if ";" not in condition and " = " not in condition:
                add("condition", tokens[index + 1][3], tokens[last][2], f"!({condition})")

        if kind in ("word", "operator") and index > 0 and tokens[index - 1][1] in (";", "{", "}", ")", "else", ":"):
            last = statement_end(tokens, index)
            if source[:start].rpartition("\n")[2].strip() or last is None:
                continue
            if text == "return" and last > index + 1:
                value = source[tokens[index + 1][2] : tokens[last][2]]
                if value not in ("{}", "false", "nullptr", "std::nullopt", "*this"):  # the default, or never compiles
                    add("return-default", tokens[index + 1][2], tokens[last][2], "{}")
                if value not in ("{}", "true", "false", "*this"):  # never compiles, or the same as another
                    add("return-negated", tokens[index + 1][2], tokens[last][2], f"!({value})")
            elif text in ("return", "break", "continue") or (
                tokens[index - 1][1] != ":" and is_expression(tokens[index:last])
            ):
                add("left-out", start, tokens[last][2], "")

    for match in re.finditer(r"^    [:,] (\w+)\((.+)\)$", source, re.MULTILINE):
        add("initializer", match.start(2), match.end(2), "")
    return found


def source_files():
    return sorted(path for path in (ROOT / "src").rglob("*") if path.suffix in (".cpp", ".h"))


def chosen(files, count, seed):
    """About `count` of all mutations: of each file in proportion to its lines but at least five, all kinds in turn."""
    picked = []
    texts = {path: path.read_text() for path in files}
    lines = sum(text.count("\n") for text in texts.values())
    for path, text in texts.items():
        relative = str(path.relative_to(ROOT))
        kinds = collections.defaultdict(list)
        for mutation in mutations_of(relative, text):
            kinds[mutation.kind].append(mutation)
        shuffler = random.Random(f"{seed} {relative}")
        for name in sorted(kinds):
            shuffler.shuffle(kinds[name])
        share = max(5, round(count * text.count("\n") / lines)) if count else sum(map(len, kinds.values()))
        while share > 0 and any(kinds.values()):
            for name in sorted(kinds):
                if kinds[name] and share > 0:
                    picked.append(kinds[name].pop())
                    share -= 1
    return picked


def limit_resources():
    resource.setrlimit(resource.RLIMIT_CPU, (PROCESSOR_SECONDS, PROCESSOR_SECONDS))
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY_BYTES, MEMORY_BYTES))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


class Workshop:
    """A copy of the repository with a build of its own, in which one mutation at a time is tried."""

    def __init__(self, folder):
        self.tree = folder / "tree"
        self.build = folder / "build"

    def prepare(self):
        self._copy_repository()
        configured = self._run(
            "cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
            "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DVORNSDK_ONVIF_INSTALL=OFF",
            "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON",  # a changed library needs no program linked anew
        )
        if configured.returncode != 0:
            sys.exit(configured.stdout + configured.stderr + "The configuration failed; its output stands above.")
        built = self._run_build()
        if built.returncode != 0:
            sys.exit(built.stdout + "The build failed; its output stands above.")
        failed = self._failed_test("core")
        if failed:
            sys.exit(f"Without any mutation the tests already fail: {failed}.")

    def _copy_repository(self):
        listed = subprocess.run(
            ["git", "ls-files", "--cached", "--others", "--exclude-standard"],
            cwd=ROOT, capture_output=True, text=True, check=True,
        )
        for name in listed.stdout.splitlines():
            source, target = ROOT / name, self.tree / name
            if not source.exists():
                target.unlink(missing_ok=True)
            elif not target.exists() or target.read_bytes() != source.read_bytes():
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, target)

    def _run_build(self):
        programs = [f"test-{name}" for name in TESTS]
        examples = [f"example-{path.stem}" for path in sorted((self.tree / "examples").glob("*.cpp"))]
        return self._run("ninja", "-C", self.build, "-j1", *programs, *examples, "onvif-inspect")

    @staticmethod
    def _run(*command):
        return subprocess.run(command, capture_output=True, text=True)

    def _failed_test(self, first):
        """The first test that fails; None if all pass."""
        commands = {
            name: [self.build / "tests" / f"test-{name}", "--gtest_fail_fast", "--gtest_brief=1"]
            for name in sorted(TESTS, key=lambda name: name != first)
        }
        commands["examples"] = ["ctest", "--test-dir", self.build, "-R", "^(example-|samples-shown$|portability$)", "--stop-on-failure"]
        for name, command in commands.items():
            try:
                ended = subprocess.run(
                    command, preexec_fn=limit_resources, timeout=WALL_SECONDS,
                    stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                )
            except subprocess.TimeoutExpired:
                return f"{name} (out of time)"
            if ended.returncode != 0:
                return name
        return None

    def verdict(self, mutation):
        """The name of the test that caught it; else "survived", or "no mutant" where it does not compile."""
        path = self.tree / mutation.path
        path.write_text(mutation.mutated)
        try:
            if self._run_build().returncode != 0:
                return "no mutant"
            folder = mutation.path.split("/")[1]
            return self._failed_test(folder) or "survived"
        finally:
            path.write_text(mutation.original)


class Log:
    """The verdicts so far, one a line, so that a run that was stopped can go on."""

    def __init__(self, path):
        self.path = path
        self.verdicts = {}
        if path.exists():
            for line in path.read_text().splitlines():
                entry = json.loads(line)
                self.verdicts[entry["id"], entry["diff"]] = entry["verdict"]
        self._lock = threading.Lock()

    def of(self, mutation):
        return self.verdicts.get((mutation.id, mutation.diff))

    def add(self, mutation, verdict):
        entry = {"id": mutation.id, "diff": mutation.diff, "verdict": verdict}
        with self._lock, self.path.open("a") as file:
            file.write(json.dumps(entry) + "\n")
            self.verdicts[entry["id"], entry["diff"]] = verdict


def try_all(mutations, log, jobs):
    print(f"Building {jobs} copies of the repository below {WORK.relative_to(ROOT)}", flush=True)
    workshops = queue.Queue()

    def prepare_one(number):
        workshop = Workshop(WORK / str(number))
        workshop.prepare()
        workshops.put(workshop)

    def try_one(mutation):
        workshop = workshops.get()
        try:
            verdict = workshop.verdict(mutation)
        finally:
            workshops.put(workshop)
        log.add(mutation, verdict)
        print(f"{mutation.id}: {verdict}", flush=True)

    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        list(pool.map(prepare_one, range(jobs)))
        list(pool.map(try_one, mutations))


def print_result(mutations, log):
    counts = collections.defaultdict(collections.Counter)
    for mutation in mutations:
        verdict = log.of(mutation)
        if verdict != "no mutant":
            counts[mutation.path]["survived" if verdict == "survived" else "caught"] += 1
    print(f"\n{'File':50} {'Mutants':>8} {'Caught':>8} {'Survived':>8}")
    for path in sorted(counts):
        row = counts[path]
        print(f"{path:50} {row.total():8} {row['caught']:8} {row['survived']:8}")
    total = sum(counts.values(), collections.Counter())
    share = 100 * total["caught"] / max(total.total(), 1)
    print(f"{'Total':50} {total.total():8} {total['caught']:8} {total['survived']:8}  {share:.1f} % caught")
    for mutation in mutations:
        if log.of(mutation) == "survived":
            print(f"\nsurvived: {mutation.id}\n{mutation.diff}")
    return share


def main():
    parser = argparse.ArgumentParser(prog="scripts/mutate", add_help=False)
    parser.add_argument("--list", action="store_true")
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--count", type=int, default=350)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=1)
    parser.add_argument("file", nargs="*")
    options = parser.parse_args()
    if options.count < 0 or options.jobs < 1:
        parser.error("--count takes 0 or more, --jobs 1 or more")

    files = source_files()
    names = [str(path.relative_to(ROOT)) for path in files]
    for unknown in set(options.file) - set(names):
        parser.error(f"{unknown} is no source file below src.")
    mutations = chosen(files, options.count, options.seed)
    if options.file:
        mutations = [mutation for mutation in mutations if mutation.path in options.file]
    if options.list:
        for mutation in mutations:
            print(f"{mutation.id}\n{mutation.diff}")
        return 0

    WORK.mkdir(parents=True, exist_ok=True)
    log = Log(WORK / "log.jsonl")
    to_try = [None, "survived"] if options.again else [None]
    wanted = [mutation for mutation in mutations if log.of(mutation) in to_try]
    if wanted:
        try_all(wanted, log, options.jobs)
    return 0 if print_result(mutations, log) >= LIMIT else 1


if __name__ == "__main__":
    sys.exit(main())
