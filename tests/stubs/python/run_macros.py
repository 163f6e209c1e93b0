"""Runs the macros whose paths are given, one after the other, and looks at what each has kept in the end. Each is
announced by a line with its path, which is answered when its drawing is ready, and ended by another one: when it was
stopped, with where and why."""

import importlib.util
import inspect
import re
import sys
import traceback

import win32com.client as client


def module_of(path):
    spec = importlib.util.spec_from_file_location("macro", path)
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return module


# What a drawing has before anything is made in it.
FRAME = {"app": "application", "doc": "document", "views": "viewmanager", "sketch": "sketchmanager"}


def kept(drawing, searches):
    """Objects of other classes than their names say: a result is taken for another one. What was found by a handle is
    what the drawing has there, and a search may find nothing."""
    for name, value in vars(drawing).items():
        cls = value._class.lower() if isinstance(value, client.Thing) else type(value).__name__
        isFound = value._found if isinstance(value, client.Thing) else value is None and searches
        if not isFound and cls != FRAME.get(name, re.sub(r"\d+$", "", name)):
            yield f"drawing.{name} is a {cls}"


def is_point(value):
    return isinstance(value, tuple) and len(value) == 3 and all(isinstance(one, float) for one in value)


def points_of(module):
    """What the user pointed to, in the order in which the functions ask when all are called."""
    for function in filter(callable, vars(module).values()):
        for default in (one.default for one in inspect.signature(function).parameters.values()):
            if is_point(default):
                yield default
            elif isinstance(default, tuple):
                yield from filter(is_point, default)


def run(path, application):
    drawings = []
    client.state["application"] = client.Thing(application, "Application")
    try:
        module = module_of(path)
        client.state["points"] = list(points_of(module))
        connect = module.connect
        module.connect = lambda: drawings.append(connect()) or drawings[-1]
        status = module.main()
        wrong = [status] if status else list(kept(drawings[0], hasattr(module, "find_piece")))
        return {"message": "; ".join(wrong), "line": 0} if wrong else None
    except (Exception, SystemExit) as error:
        line = [frame.lineno for frame in traceback.extract_tb(error.__traceback__) if frame.filename == path]
        return {"message": f"{type(error).__name__}: {error}", "line": line[-1] if line else 0}


def main():
    for path in sys.argv[1:]:
        client.tell({"macro": path})
        client.tell({"stopped": run(path, client.reply())})
    sys.stdout.flush()


if __name__ == "__main__":
    main()
