"""Recordings cut down to what can stand alone."""

import json
import re

# The custom action that inserts a polyline with the pen.
PEN = 16


def texts_of(node):
    if isinstance(node, (dict, list)):
        return {text for part in (node.values() if isinstance(node, dict) else node) for text in texts_of(part)}
    return {node} if isinstance(node, str) else set()


def inserted_by(action):
    """The handles of what it makes."""
    if "added" in action:
        return [action["added"]["handle"]]
    data = action["custom"]["data"] if action.get("custom", {}).get("kind") == PEN else []
    return [datum["handle"] for datum in data if "handle" in datum]


def of(recording, folder):
    """The recording cut down to single commands and actions, each behind the insertions of what it names."""
    lines = [json.loads(line) for line in recording.read_text(encoding="utf-8-sig").split("\n") if line.strip()]
    frame = [line for line in lines if line.keys() & {"recording", "object"}]
    inserted, count = {}, 0
    for line in (line for line in lines if line not in frame):
        actions = line["command"]["actions"] if "command" in line else [line]
        # Actions of several kinds belong together.
        joined = len({kind for action in actions for kind in action}) > 1
        for part in [line] if joined or len(actions) == 1 else [line, *actions]:
            before = [inserted[handle] for handle in sorted(inserted.keys() & texts_of(part))]
            commands = [one if one is line or "command" in one else {"command": {"name": "", "actions": [one]}}
                        for one in [*before, part]]
            count += 1
            file = folder / f"{re.sub('[^0-9A-Za-z]', '_', recording.stem)}_{count}.jsonl"
            file.write_text("\n".join(map(json.dumps, [*frame, *commands])) + "\n", encoding="utf-8")
            yield file
        inserted |= {handle: line if joined else action for action in actions for handle in inserted_by(action)}
