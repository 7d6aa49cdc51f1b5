#!/bin/sh
# library_on_demand.sh ENTRY NEEDED LIBRARY FILE...
# The library, which is loaded when it is first needed, exports its one entry, and it alone needs the
# libraries that it is there for (a pattern of their names): each FILE starts without it and without them.
set -eu
export LC_ALL=C
entry=$1
needed=$2
library=$3
shift 3
failed=0

for file in "$@"; do
  if ldd "$file" | grep -E "^[[:space:]]*($needed|$(basename "$library"))"; then
    echo "$file needs that" >&2
    failed=1
  fi
done
if ! readelf -d "$library" | sed -n 's/.*(NEEDED).*\[\(.*\)\].*/\1/p' | grep -qE "^($needed)"; then
  echo "$library does not need $needed: this check looks at the wrong file" >&2
  failed=1
fi
exported=$(nm -D --defined-only "$library" | awk '{ print $3 }')
if [ "$exported" != "$entry" ]; then
  echo "exported by $library: $exported" >&2
  failed=1
fi
exit $failed
