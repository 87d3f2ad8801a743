"""One mutant at a time: compiled, linked, and given to the tests."""

import dataclasses
import hashlib
import os
import shutil
import signal
import subprocess
import tempfile
import time

# The test programs for what is in a folder, those of its own first: "program" or "program:filter".
PROGRAMS = {
    "platform": ("platform", "faults", "platform_faults", "platform_memory", "settings_faults",
                 "registry_faults", "prefs"),
    "markup": ("markup", "model", "host", "prefs"),
    "gameside": ("prefs", "dota7", "registry_faults", "model", "host"),
    "model": ("model", "host", "settings_faults"),
}
# A mutant may ask for all the memory there is, need not leave a core, and ends after ten minutes
# of work also where nobody is left to end it.
_LIMITED = ("sh", "-c", "ulimit -c 0 && ulimit -t 600 && ulimit -v 4194304 && exec \"$0\" \"$@\"")


def program_of(name):
    """The program without the filter."""
    return name.partition(":")[0]


class Trials:
    """`programs_of` names the test programs for each folder, as PROGRAMS does. A program may take
    four times as long as without a mutant, and `least_seconds`."""

    def __init__(self, build, room, programs_of, least_seconds=10):
        self._build = build
        self._room = room
        self._programs_of = programs_of
        self._least_seconds = least_seconds
        self._seconds = {}
        for name in dict.fromkeys(name for names in programs_of.values() for name in names):
            began = time.monotonic()
            if self._run(name, build.program(program_of(name)), 600) != 0:
                raise RuntimeError(f"{name} fails without a mutant")
            self._seconds[name] = time.monotonic() - began

    def fingerprint(self, folder):
        """Changes with the programs that a folder's mutants are given to."""
        digest = hashlib.sha256()
        for name in self._programs_of[folder]:
            digest.update(self._build.program(program_of(name)).read_bytes())
        return digest.hexdigest()[:16]

    def of(self, mutant, text):
        """What becomes of a mutant: a verdict and a word on it."""
        room = tempfile.mkdtemp(dir=self._room)
        try:
            return self._verdict(mutant, text, type(self._room)(room))
        finally:
            shutil.rmtree(room, ignore_errors=True)

    def _verdict(self, mutant, text, room):
        build = self._build
        build.change(mutant.file, mutant.applied_to(text), room)
        same_code = True
        for name in self._programs_of[mutant.file.split("/")[0]]:
            objects = build.compile(program_of(name), mutant.file, room)
            if objects is None:
                return "not compiled", ""
            if build.same_code(objects, room):
                continue
            same_code = False
            program = build.link(program_of(name), objects, room)
            if program is None:
                return "not compiled", "not linked"
            status = self._run(name, program, 4 * self._seconds[name] + self._least_seconds)
            program.unlink()
            if status != 0:
                return "killed", name if status is not None else f"{name}, no end"
        if not same_code:
            return "survived", ""
        if self._is_left_out(mutant, text, room / "nonsense"):
            return "not compiled", "no part of this build"
        return "survived", "the compiler makes the same code of it"

    def _is_left_out(self, mutant, text, room):
        """Whether the preprocessor removes what a mutant changes: then nonsense compiles, too."""
        nonsense = dataclasses.replace(mutant, after="@")
        self._build.change(mutant.file, nonsense.applied_to(text), room)
        programs = map(program_of, self._programs_of[mutant.file.split("/")[0]])
        return all(self._build.compile(program, mutant.file, room) is not None
                   for program in programs)

    def _run(self, name, program, seconds):
        """The exit status of a test program, or None where it takes too long."""
        with tempfile.TemporaryDirectory(prefix="brennet-mutation-",
                                         ignore_cleanup_errors=True) as folder:
            os.chmod(folder, 0o1777)  # tests become other users where they can
            environment = {**os.environ, "BRENNET_TEST_TMPDIR": folder}
            process = subprocess.Popen(
                [*_LIMITED, str(program), "--gtest_fail_fast", "--gtest_brief=1",
                 f"--gtest_filter={name.partition(':')[2] or '*'}"],
                cwd=self._build.working_folder(program_of(name)), env=environment,
                start_new_session=True, stdin=subprocess.DEVNULL,
                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            try:
                return process.wait(seconds)
            except subprocess.TimeoutExpired:
                return None
            finally:
                _end_group(process)


def _end_group(process):
    """Ends the program and what it has started."""
    try:
        os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass
    process.wait()
