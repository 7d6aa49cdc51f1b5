#!/bin/sh
# module_symbols.sh MODULE HOST_LIBRARY
# The shipped module exports its one entry and nothing else, holds no unique symbol (which would keep it in
# the process for ever), needs no library beyond the compiler's, and finds all it needs in those and in the
# host's library.
set -eu
export LC_ALL=C
module=$1
host_library=$2
entry=_ZN7Vantrel12CreateModuleERKN7qelcore10UTF8StringE
allowed='libstdc++.so.6 libm.so.6 libgcc_s.so.1 libc.so.6 ld-linux-x86-64.so.2 ld-linux-aarch64.so.1'
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

complain() { # TITLE FILE: the lines of FILE are one too many each
  [ -s "$2" ] || return 0
  echo "$1:" >&2
  c++filt <"$2" | sed 's/^/  /' >&2
  failed=1
}

names() { sed 's/@.*//' | sort -u; }

nm -D --defined-only "$module" >"$work/exported"
awk -v entry="$entry" '!($2 == "T" && $3 == entry)' "$work/exported" >"$work/too_many"
complain 'exported beside the entry' "$work/too_many"
if ! grep -q " T $entry\$" "$work/exported"; then
  echo "the entry $entry is not exported" >&2
  failed=1
fi

nm "$module" | awk '$2 == "u"' >"$work/unique"
complain 'unique symbols' "$work/unique"

readelf -d "$module" | sed -n 's/.*(NEEDED).*\[\(.*\)\].*/\1/p' >"$work/needed"
for name in $allowed; do echo "$name"; done | grep -vxF -f /dev/stdin "$work/needed" >"$work/foreign" || :
complain 'libraries needed beside the compiler'\''s' "$work/foreign"

# What the loader resolves: the strong undefined symbols, by the host's library and by those needed.
nm -D --undefined-only "$module" | awk '$1 == "U" { print $2 }' | names >"$work/undefined"
{
  echo "$host_library"
  ldd "$module" | awk '$3 ~ /^\// { print $3 } $1 ~ /^\// { print $1 }'
} | while read -r library; do
  nm -D --defined-only "$library" | awk '{ print $3 }'
done | names >"$work/offered"
comm -23 "$work/undefined" "$work/offered" >"$work/missing"
complain 'undefined, and in no library' "$work/missing"

exit $failed
