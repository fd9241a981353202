"""The rows of the benchmark's table: each module measures one kind."""

import os
import sys

REPOSITORY = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
# The desktop that the tests run on.
sys.path.insert(0, os.path.join(REPOSITORY, "tests", "desktop"))
