#!/usr/bin/python3
"""Opens the pages of recordings in a browser.

    check_pages.py PROGRAM SOURCE_DIR data|edited|hostile|pixels|use
"""

import importlib
import sys

import chromium
import pages

if __name__ == "__main__":
    subject = sys.argv.pop(3)
    checked, summary = pages.Pages(), ""
    with checked.browser:
        try:
            summary = importlib.import_module(f"page_{subject}").check(checked)
        except chromium.BrowserError as error:
            checked.complain(subject, error)
    checked.finish(summary)
