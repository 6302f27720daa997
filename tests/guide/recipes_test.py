"""Runs the recipes of the guide for the command line on the simulated cameras of an installation.

usage: recipes_test.py STAGE
"""

import html
import os
import re
import subprocess
import sys
import tempfile
import unittest

STAGE = os.path.abspath(sys.argv.pop())
LIMIT = 120  # Seconds; only a hang takes so long.

with open(f"{STAGE}/doc/index.html", encoding="utf-8") as file:
    RECIPES = [html.unescape(code) for code in
               re.findall(r'<h3>[^<]*</h3>\s*<pre class="recipe"><code>(.*?)</code></pre>', file.read(), re.DOTALL)]


class RecipesTest(unittest.TestCase):
    def test_recipes_succeed(self):
        self.assertEqual(len(RECIPES), 5)
        with tempfile.TemporaryDirectory() as directory:
            environment = {**os.environ, "PATH": f"{STAGE}/bin:{os.environ['PATH']}", "XDG_RUNTIME_DIR": directory}
            for recipe in RECIPES:
                with self.subTest(recipe):
                    result = subprocess.run(["bash", "-euc", recipe], cwd=directory, env=environment, timeout=LIMIT,
                                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
                    self.assertEqual(result.returncode, 0, result.stdout)
            for name in ("part.png", "part.png.json", "good.txt", "run.tiff", "series-4000.tiff"):
                self.assertTrue(os.path.getsize(f"{directory}/{name}") > 0, name)


if __name__ == "__main__":
    unittest.main()
