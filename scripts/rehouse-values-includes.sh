#!/usr/bin/env bash
# Names the headers of src/values by their subfolder in every include line
# ("values/Settings.h" -> "values/settings/Settings.h") and drops the
# forwarding headers the build made for the short names. Run once, on a tree
# where every branch that still used the short names has been merged.
set -euo pipefail
cd "$(dirname "$0")/.."
for sub in types settings; do
  for h in src/values/$sub/*.h; do
    name=$(basename "$h")
    { grep -rlZF --include='*.h' --include='*.cpp' "\"values/$name\"" src qt host tests bench fuzz || true; } |
      xargs -0 -r sed -i "s|\"values/$name\"|\"values/$sub/$name\"|g"
  done
done
# The forwarding block and its one call.
sed -i '/^# BEGIN values short includes/,/^# END values short includes/d' CMakeLists.txt
sed -i '/^qv_values_short_includes(/d' src/CMakeLists.txt
echo "include lines rewritten; rebuild to check"
