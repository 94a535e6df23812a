# The page of what is translated tells what the sources do, and leaves nothing open.
import os
import pathlib
import subprocess
import unittest

SOURCE = pathlib.Path(os.environ["KV_SOURCE_DIR"]).resolve()


class Coverage(unittest.TestCase):
    def test_page_is_up_to_date(self):
        result = subprocess.run([SOURCE / "tools/coverage", "--check"], capture_output=True, text=True)
        self.assertEqual(result.returncode, 0, result.stderr)


if __name__ == "__main__":
    unittest.main()
