#!/usr/bin/python3
"""Opens the pages of recordings in a browser.

    check_pages.py PROGRAM SOURCE_DIR data
"""

import importlib
import sys

import pages

if __name__ == "__main__":
    checked = pages.Pages()
    with checked.browser:
        summary = importlib.import_module(f"page_{sys.argv.pop(3)}").check(checked)
    checked.finish(summary)
