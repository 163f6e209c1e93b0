"""The system's side of COM, as far as macros name it."""

VT_I4, VT_R8, VT_BSTR, VT_DISPATCH, VT_ARRAY = 3, 5, 8, 9, 0x2000
Missing = object()  # what stands behind it is not handed over
Nothing = object()


class com_error(Exception):
    pass
