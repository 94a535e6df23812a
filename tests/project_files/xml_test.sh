#!/bin/bash
# The project files that are XML are well-formed; that they are what a conversion writes, project_files_test.cpp tells.
set -eu
find "$KV_SOURCE_DIR/tests/project_files" -name '*proj.expected' -print0 | xargs -0 xmllint --noout
