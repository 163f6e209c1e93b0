#!/usr/bin/python3
"""Parses the C++ add-ins against stub headers with g++, the entry points as they are built elsewhere too.

    check_cpp.py PROGRAM SOURCE_DIR [repaired]

With `repaired`, as --repair writes them: nothing is excused.
"""


import gxx
import harness
import stubs_cpp

# As in the project file, for a compiler that has no such declarations.
WINDOWS = ["-DUNICODE", "-DNDEBUG", "-DIW_WIN", "-DIwAddin_LIB", "-D__declspec(kind)="]


class Judge(gxx.Judge):
    def __init__(self, checked, macros):
        super().__init__(macros)
        headers = checked.folder / "headers"
        headers.mkdir(exist_ok=True)
        stubs_cpp.write(headers)
        self.includes = ["-I", headers, "-I", harness.STUBS / "cpp"]

    def rejections_of(self, macro):
        connection = macro.folder / "iwAddinConnection.cpp"
        return (gxx.rejections([*WINDOWS, *self.includes], macro.file, connection) +
                gxx.rejections(self.includes, connection))


if __name__ == "__main__":
    harness.check("cpp", Judge, "add-ins parsed")
