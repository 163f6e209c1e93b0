"""The line of README.md for many recordings, on two slots of this machine."""

import csv
import os
import pathlib
import re
import shutil
import sys

import harness

GOOD = 200
UNREADABLE = 3


def main():
    harness.need("parallel")
    checked = harness.Checked()
    folder = checked.folder
    command = re.search(r"^parallel .*$", checked.source.joinpath("README.md").read_text(encoding="utf-8"),
                        re.MULTILINE).group()
    recordings = folder / "recordings"
    recordings.mkdir()
    for number in range(GOOD):
        shutil.copy(checked.source / "tests/tools/recordings/gasket.jsonl", recordings / f"part {number}.jsonl")
    recordings.joinpath("broken.jsonl").write_text('{"sysvar":{}}\n', encoding="utf-8")

    path = f"{checked.program.resolve().parent}:{os.environ['PATH']}"
    done = harness.run("sh", "-c", command, cwd=folder,
                       env={**os.environ, "PATH": path, "HOME": str(folder), "PARALLEL": "-j2"})
    faults = []
    if done.returncode != 1:
        faults.append(f"parallel ended with {done.returncode}: {done.stderr}")
    with open(folder / "jobs.txt", encoding="utf-8", newline="") as jobs:
        statuses = sorted(int(job["Exitval"]) for job in csv.DictReader(jobs, delimiter="\t"))
    if statuses != [0] * GOOD + [UNREADABLE]:
        faults.append(f"the jobs ended with {statuses}")
    for number in range(GOOD):
        said = folder.joinpath("said", f"part {number}").read_text(encoding="utf-8").splitlines()
        if len(said) < 6 or not all(folder.joinpath(file).is_file() for file in said):
            faults.append(f"of part {number} there is only {said}")
    message = folder.joinpath("said/broken.err").read_text(encoding="utf-8")
    if not message.startswith("recordings/broken.jsonl:1: sysvar"):
        faults.append(f"the message about the broken recording is {message!r}")
    print("\n".join(faults) or f"{GOOD} recordings converted")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
