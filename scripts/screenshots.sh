#!/usr/bin/env bash
# Builds the host and saves a picture of every window of the demonstration
# (the host, New Task empty, filled and from a catalog item with a past
# deadline, Add Project, Add Keyword, the checklist picker and editor, Page
# Setup and the print preview, a Task Appointment fresh, worked and
# completed, the Existing Task window on both tabs with twenty
# appointments), each at its
# opening size, its minimum and a larger size.
# Usage: scripts/screenshots.sh [application folder]   (default: build/shots)
set -euo pipefail
cd "$(dirname "$0")/.."
home=${1:-build/shots}
scripts/setup-deps.sh
scripts/build.sh release
QT_QPA_PLATFORM=offscreen build/release/host/quorvel --home "$home" --screenshots
