"""check_house_test.py FOLDER: what tools/check_house.py finds in sources that are made up, and where it says nothing.

Without unittest and tempfile, which Debian's smallest Python lacks."""

import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools"))
import check_house  # noqa: E402

HEADER = {"definition/Unit.h": "#pragma once\n"}
FIRST = "definition/Unit.cpp: does not begin with its own header"
UP = "definition/Unit.cpp: includes session/SessionState.h, which is not below it"

# Files, and what is to be found in them.
CASES = [
    (HEADER | {"definition/Unit.cpp": '#include <string>\n#include "definition/Unit.h"\n'}, [FIRST]),
    (HEADER | {"definition/Unit.cpp": '#include "definition/Other.h"\n#include "definition/Unit.h"\n'}, [FIRST]),
    (HEADER | {"definition/Unit.cpp": '#include "Unit.h"\n'}, [FIRST]),
    (HEADER | {"definition/Unit.cpp": "int x;\n"}, [FIRST]),
    (HEADER | {"definition/Unit.cpp": '// Says a word.\n#include "definition/Unit.h"\n\n#include <string>\n'}, []),
    # Without a header of the same name beside it a source begins as it likes.
    (HEADER | {"definition/Part.cpp": "#include <string>\n", "acquisition/Unit.cpp": "#include <string>\n"}, []),
    ({"definition/Unit.cpp": '#include "session/SessionState.h"\n'}, [UP]),
]


def main():
    wrong = 0
    for number, (files, expected) in enumerate(CASES):
        root = os.path.join(sys.argv[1], str(number))
        for path, text in files.items():
            full = os.path.join(root, path)
            os.makedirs(os.path.dirname(full), exist_ok=True)
            with open(full, "w", encoding="utf-8") as source:
                source.write(text)
        found = sorted(check_house.findings(root))
        if found != expected:
            wrong += 1
            print(f"{files}\n  expected {expected}\n  found    {found}")
    print(f"{len(CASES)} cases, {wrong} wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
