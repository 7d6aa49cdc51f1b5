#!/bin/sh
# media_library.sh MEDIA_LIBRARY PROGRAM HOST_LIBRARY MEDIA_PROGRAM
# The library for media files exports its one entry, and it alone needs libav: the program and the host's
# library do without it, and the program that loads it starts without it.
set -eu
export LC_ALL=C
media_library=$1
shift
failed=0

needed() { readelf -d "$1" | sed -n 's/.*(NEEDED).*\[\(.*\)\].*/\1/p'; }

for file in "$@"; do
  if ldd "$file" | grep -E 'libav(format|codec|util)|sequence_index_media'; then
    echo "$file needs that" >&2
    failed=1
  fi
done
if ! needed "$media_library" | grep -q '^libavformat'; then
  echo "$media_library does not need libavformat: this check looks at the wrong file" >&2
  failed=1
fi
exported=$(nm -D --defined-only "$media_library" | awk '{ print $3 }')
if [ "$exported" != ReadSequenceIndexMedia ]; then
  echo "exported by $media_library: $exported" >&2
  failed=1
fi
exit $failed
