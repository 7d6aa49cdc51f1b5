#!/bin/sh
# declared_operations.sh COMPILER SOURCE_FOLDER HOST_LIBRARY
# Every operation that a header of host/ declares, and does not define itself, is defined by the host's
# library. The compiler lists what a header declares, with mangled names, when it is asked for a binding
# for another language.
set -eu
export LC_ALL=C
compiler=$1
sources=$2
host_library=$3
# The option that asks for an Ada binding of this one header, not of those that it includes.
binding=$("$compiler" --help=c++ | grep -o -- '-fdump-ada-[a-z]*-slim')
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

nm -D --defined-only "$host_library" | awk '{ print $3 }' | sort -u >"$work/offered"

# "<symbol> <file> <line>" for each operation and object of a header. Pure virtual operations have no symbol
# in the listing.
list_declarations() { # HEADER
  (cd "$work" && rm -f ./*.ads &&
    "$compiler" -std=c++20 -w -fsyntax-only "$binding" -x c++ -I "$sources" "$sources/$1") || exit 1
  awk -v file="$sources/$1" '
    /--.*:[0-9]+$/ && index($0, file) { line = $0; sub(/.*:/, "", line) }
    /External_Name => "|pragma CPP_Constructor/ {
      match($0, /"[^"]*"/)
      print substr($0, RSTART + 1, RLENGTH - 2), file, line
    }' "$work"/*.ads
}

# Drops the declarations that need no definition in a library: those defined in the header, deleted or
# evaluated by the compiler.
drop_inline() {
  while read -r symbol file line; do
    statement=$(sed -n "$line,\$p" "$file" | sed -e '/[;{]/{s/\([;{]\).*/\1/;q;}')
    case $statement in
      *'{' | *'= delete;' | *'= default;' | *constexpr* | *consteval*) ;;
      *) echo "$symbol $file:$line" ;;
    esac
  done
}

cd "$sources"
find host -name '*.h' | sort | while read -r header; do list_declarations "$header"; done >"$work/declared"
sort -u "$work/declared" | drop_inline | sort >"$work/wanted"
[ -s "$work/wanted" ] || { echo "no declaration found" >&2; exit 1; }
join -v 1 "$work/wanted" "$work/offered" >"$work/missing"
if [ -s "$work/missing" ]; then
  echo "declared in host/, but not defined by the host's library:" >&2
  c++filt <"$work/missing" | sed 's/^/  /' >&2
  exit 1
fi
echo "$(wc -l <"$work/wanted") operations are declared and defined"
