"""Type-checks sources with g++."""

import pathlib
import re

import harness

ERROR = re.compile(r"^(.*?):(\d+):\d+: (?:fatal )?error: (.*)$", re.MULTILINE)


class Judge:
    """Of macros that it is asked about again it knows what it said."""

    def __init__(self, macros):
        self.macros, self._judged = macros, set()

    def __call__(self):
        fresh = [macro for macro in self.macros if macro not in self._judged]
        self._judged.update(fresh)
        return list(dict.fromkeys(one for macro in fresh for one in self.rejections_of(macro)))


def rejections(options, *files):
    """What is rejected of sources, where it stands."""
    compiler, = harness.need("g++")
    result = harness.run(compiler, "-std=c++17", "-fsyntax-only", "-Werror=write-strings", *options, *files)
    found = [harness.Rejection(pathlib.Path(file), int(line), message)
             for file, line, message in ERROR.findall(result.stderr)]
    if result.returncode != 0 and not found:
        found = [harness.Rejection(files[0], 0, result.stderr)]
    return found
