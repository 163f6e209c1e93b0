"""Repeats the recording recording in the open drawing of Inkwright.

Each function repeats one command; its parameters are what the user answered. So
another program can call them with other values:

    drawing = recording.connect()
    recording.FUNCTION(drawing, PARAMETER=VALUE)

Written by inkmacro. Needs Windows, pywin32 and a running Inkwright.
"""

import sys

import pythoncom
import win32com.client

constants = win32com.client.constants


class Drawing:
    """The drawing that is open, and every object that the functions make in it."""

    def __init__(self, app):
        self.app = app
        self.doc = app.GetActiveDocument()
        if self.doc is None:
            raise RuntimeError("no drawing is open in Inkwright")
        self.views = self.doc.GetViewManager()
        self.model = self.doc.GetModel()
        self.sheet = self.doc.GetSheet("<sheet>")
        if self.sheet is None:
            raise RuntimeError("the drawing has no such sheet as the recording")
        self.sheet.Activate()
        self.sketch = self.sheet.GetSketchManager()


def connect():
    """Joins Inkwright. Calls go through the classes that its type library gives."""
    try:
        app = win32com.client.GetActiveObject("Inkwright.Application")
    except pythoncom.com_error:
        raise RuntimeError("Inkwright is not running") from None
    try:
        app = win32com.client.gencache.EnsureDispatch(app)
    except TypeError:
        raise RuntimeError("the type library of Inkwright cannot be read") from None
    return Drawing(app)


<statements>
    return 0


if __name__ == "__main__":
    sys.exit(main())
