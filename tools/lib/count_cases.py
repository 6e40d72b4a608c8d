#!/usr/bin/env python3
"""count_cases.py DIRECTORY: prints how many test cases passed and failed.

The directory holds ctest's report, ctest.junit, and <test>.xml for each test that is a GoogleTest program. A test
without such a report counts as one case. A test that fails although no case in its report did (a leak found at the end,
a crash) counts as one failed case.
"""

import sys
import xml.etree.ElementTree as xml
from pathlib import Path


def count(directory):
    passed = failed = 0
    for test in xml.parse(directory / "ctest.junit").getroot().iter("testcase"):
        test_passed = test.get("status") == "run"
        report = directory / f"{test.get('name')}.xml"
        cases_failed = 0
        if report.exists():
            cases = xml.parse(report).getroot()
            cases_failed = int(cases.get("failures")) + int(cases.get("errors"))
            left_out = int(cases.get("disabled")) + sum(int(suite.get("skipped", 0)) for suite in cases)
            passed += int(cases.get("tests")) - cases_failed - left_out
        elif test_passed:
            passed += 1
        failed += cases_failed
        if not test_passed and cases_failed == 0:
            failed += 1
    return passed, failed


if __name__ == "__main__":
    print("%d passed, %d failed" % count(Path(sys.argv[1])))
