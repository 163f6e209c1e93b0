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


class Judge:
    def __init__(self, checked, macros):
        self.macros = macros
        headers = checked.folder / "headers"
        headers.mkdir(exist_ok=True)
        precompiled = (macros[0].folder / "stdafx.h").read_text(encoding="utf-8-sig")
        stubs_cppcom.write(harness.STUBS / "interface.txt", precompiled, headers)
        self.options = [*DEFINITIONS, "-I", headers, "-I", harness.STUBS / "cppcom"]
        for macro in macros:
            definition = macro.project(".idl").read_text(encoding="utf-8-sig")
            (macro.folder / f"{macro.name}_i.h").write_text(stubs_cppcom.own_header(definition), encoding="utf-8")

    def __call__(self):
        rejections = []
        for macro in self.macros:
            sources = sorted(file for file in macro.folder.iterdir() if file.suffix == ".cpp")
            for one in gxx.rejections(self.options, *sources):
                # What a macro's own classes lack is rejected in the stubs.
                own = one.file.parent == macro.folder
                rejections.append(one if own else dataclasses.replace(one, file=macro.file, line=0))
        return list(dict.fromkeys(rejections))


if __name__ == "__main__":
    harness.check("cppcom", Judge, "add-ins type-checked")
