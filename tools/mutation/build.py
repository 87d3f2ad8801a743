"""A build of the checkout, and what of it changes with one source."""

import collections
import json
import pathlib
import shlex
import shutil
import subprocess


def _is_member(target, library):
    """Whether a word of a link command is the library of an object."""
    if not (library.startswith("lib/lib") and library.endswith(".a")):
        return False
    return f"/{pathlib.Path(library).stem.removeprefix('lib')}.dir/" in target


class BuildError(Exception):
    pass


class Build:
    """The test programs, built once. Only read afterwards, so that several mutants can be tried at
    a time: what differs for a mutant lies in a folder of its own."""

    def __init__(self, checkout, folder, programs, jobs):
        self.checkout = checkout
        self.folder = folder
        self._run("cmake", "-S", str(checkout), "-B", str(folder), "-G", "Ninja",
                  "-DCMAKE_BUILD_TYPE=", "-DCMAKE_CXX_FLAGS=-O1", "-DBRENNET_WERROR=OFF")
        self._run("ninja", "-C", str(folder), "-j", str(jobs), *(f"{p}_tests" for p in programs))
        self._compile = {}
        for entry in json.loads((folder / "compile_commands.json").read_text(encoding="utf-8")):
            words = shlex.split(entry["command"])
            self._compile[words[words.index("-o") + 1]] = words
        self._objects_of = self._read_dependencies()
        self._link = {program: self._link_command(program) for program in programs}

    def sources(self, folders):
        """The files of the folders that are compiled here, relative to the checkout."""
        return sorted(file for file in self._objects_of if file.split("/")[0] in folders)

    def program(self, name):
        return self.folder / "bin" / f"{name}_tests"

    def working_folder(self, name):
        """Where CTest runs the program."""
        objects = next(word for word in self._link[name] if word.endswith(".o"))
        return self.folder / objects.split("/CMakeFiles/")[0]

    def change(self, file, text, room):
        """Puts a changed source into the folder `room`, where compile() finds it."""
        changed = room / "sources" / file
        changed.parent.mkdir(parents=True)
        changed.write_text(text, encoding="utf-8")

    def compile(self, name, file, room):
        """Compiles what a program has of a changed source, unless another program had it compiled.
        Returns the objects, or None where it does not compile."""
        objects = [o for o in self._objects_of[file] if self._is_part(o, self._link[name])]
        for target in objects:
            made = room / target
            if made.exists():
                continue
            made.parent.mkdir(parents=True, exist_ok=True)
            words = [str(room / "sources" / file) if word == str(self.checkout / file) else word
                     for word in self._compile[target]]
            words[words.index("-o") + 1] = str(made)
            first_include = next(i for i, word in enumerate(words) if word.startswith("-I"))
            words.insert(first_include, f"-I{room / 'sources'}")
            if subprocess.run(words, cwd=self.folder, capture_output=True, check=False).returncode:
                return None
        return objects

    def same_code(self, objects, room):
        """Whether the compiler has made the same of the changed source."""
        return all((room / o).read_bytes() == (self.folder / o).read_bytes() for o in objects)

    def link(self, name, objects, room):
        """Links a program with the changed objects. Returns its path, or None where that fails."""
        made = room / f"{name}_tests"
        words = [self._replaced(word, objects, room) for word in self._link[name]]
        words[words.index("-o") + 1] = str(made)
        done = subprocess.run(words, cwd=self.folder, capture_output=True, check=False)
        return made if done.returncode == 0 else None

    @staticmethod
    def _is_part(target, link):
        """Whether an object is linked, by itself or as a member of a library."""
        return target in link or any(_is_member(target, word) for word in link)

    def _replaced(self, word, objects, room):
        if word in objects:
            return str(room / word)
        members = [str(room / o) for o in objects if _is_member(o, word)]
        if not members:
            return word
        changed = room / word
        if not changed.exists():
            changed.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(self.folder / word, changed)
            subprocess.run(["ar", "r", str(changed), *members], capture_output=True, check=True)
        return str(changed)

    def _run(self, *command):
        done = subprocess.run(command, capture_output=True, text=True, check=False)
        if done.returncode:
            raise BuildError(f"{' '.join(command)} failed:\n{done.stdout[-3000:]}{done.stderr[-3000:]}")
        return done.stdout

    def _read_dependencies(self):
        """For each file of the checkout the objects that are made of it."""
        objects = collections.defaultdict(list)
        target = None
        for line in self._run("ninja", "-C", str(self.folder), "-t", "deps").splitlines():
            if line and not line[0].isspace():
                target = line.split(":")[0]
            elif line and target in self._compile:
                path = (self.folder / line.strip()).resolve()
                if path.is_relative_to(self.checkout) and not path.is_relative_to(self.folder):
                    objects[str(path.relative_to(self.checkout))].append(target)
        return objects

    def _link_command(self, program):
        last = self._run("ninja", "-C", str(self.folder), "-t", "commands",
                         f"{program}_tests").splitlines()[-1]
        words = [word.strip() for word in last.split("&&")]
        return shlex.split(next(word for word in words if f"-o bin/{program}_tests" in word))
