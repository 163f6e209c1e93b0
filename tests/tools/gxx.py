"""Type-checks sources with g++."""

import pathlib
import re

import harness

ERROR = re.compile(r"^(.*?):(\d+):\d+: (?:fatal )?error: (.*)$", re.MULTILINE)


def rejections(options, *files):
    """What is rejected of sources, where it stands."""
    compiler, = harness.need("g++")
    result = harness.run(compiler, "-std=c++17", "-fsyntax-only", "-Werror=write-strings", *options, *files)
    found = [harness.Rejection(pathlib.Path(file), int(line), message)
             for file, line, message in ERROR.findall(result.stderr)]
    if result.returncode != 0 and not found:
        found = [harness.Rejection(files[0], 0, result.stderr)]
    return found
