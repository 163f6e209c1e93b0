#!/usr/bin/python3
"""Type-checks the C++ COM add-ins with g++ against stubs of the system, its library for servers, and the wrappers that
a compiler makes of the application's type library.

    check_cppcom.py PROGRAM SOURCE_DIR [repaired]

With `repaired`, as --repair writes them: nothing is excused.
"""

import dataclasses

import gxx
import harness
import stubs_cppcom

# Calling conventions, and texts as in the project file.
DEFINITIONS = ["-D__stdcall=", "-DUNICODE", "-D_UNICODE", "-DNDEBUG"]


class Judge(gxx.Judge):
    def __init__(self, checked, macros):
        super().__init__(macros)
        headers = checked.folder / "headers"
        headers.mkdir(exist_ok=True)
        precompiled = (macros[0].folder / "stdafx.h").read_text(encoding="utf-8-sig")
        stubs_cppcom.write(precompiled, headers)
        self.options = [*DEFINITIONS, "-I", headers, "-I", harness.STUBS / "cppcom"]
        for macro in macros:
            definition = macro.project(".idl").read_text(encoding="utf-8-sig")
            (macro.folder / f"{macro.name}_i.h").write_text(stubs_cppcom.own_header(definition), encoding="utf-8")

    def rejections_of(self, macro):
        sources = sorted(file for file in macro.folder.iterdir() if file.suffix == ".cpp")
        # What a macro's own classes lack is rejected in the stubs.
        return [one if one.file.parent == macro.folder else dataclasses.replace(one, file=macro.file, line=0)
                for one in gxx.rejections(self.options, *sources)]


if __name__ == "__main__":
    harness.check("cppcom", Judge, "add-ins type-checked")
