#!/bin/sh
# make_fixtures.sh: makes the media files of fixtures/ again, with the ffmpeg tool. The tests use the files
# that are kept here and need no such tool.
set -eu
cd "$(dirname "$0")/fixtures"

make() { ffmpeg -hide_banner -loglevel error -nostdin -y -bitexact "$@"; }
picture() { # RATE SECONDS OPTIONS...
  rate=$1 seconds=$2
  shift 2
  make -f lavfi -i "testsrc2=size=64x36:rate=$rate:duration=$seconds" "$@"
}
sound() { # RATE SECONDS OPTIONS...
  rate=$1 seconds=$2
  shift 2
  make -f lavfi -i "sine=sample_rate=$rate:duration=$seconds" "$@"
}

h264='-c:v libx264 -pix_fmt yuv420p'
# shellcheck disable=SC2086 # options in one word
{
  picture 25 0.2 $h264 h264_25.mov
  picture 30000/1001 0.2 -f lavfi -i sine=sample_rate=48000:duration=0.2 $h264 -c:a aac -b:a 32k \
    h264_2997_sound.mp4
  picture 25 0.1 $h264 h264_25.mkv
  picture 50 0.1 $h264 h264_50.ts
  make -f lavfi -i color=black:size=720x576:rate=25:duration=0.08 -vf setsar=64/45 $h264 anamorphic.mov
}
picture 24 0.08 -c:v prores_ks -profile:v 2 prores_24.mov
picture 24000/1001 0.1 -c:v mjpeg -q:v 20 mjpeg_23976.mov
picture 25 0.08 -c:v mpeg2video -b:v 100k mpeg2_25.mxf
picture 10 0.3 moving.gif
picture 10 0.3 -plays 0 moving.apng
picture 25 0.04 -frames:v 1 still.gif
picture 25 0.04 -frames:v 1 still.tif
picture 25 0.04 -frames:v 1 -q:v 20 still.jpg
picture 25 0.04 -frames:v 1 still.png
picture 25 0.08 -start_number 7 shot.%04d.png
sound 48000 0.02 tone_48000.wav
sound 44100 0.05 tone_44100.flac
sound 44100 0.1 -c:a aac -b:a 32k tone_44100.m4a
sound 44100 0.1 tone_44100.mp3
make -i tone_44100.m4a -i still.png -map 0 -map 1 -c copy -disposition:v attached_pic cover.m4a
make -i tone_44100.flac -i still.png -map 0 -map 1 -c copy -disposition:v attached_pic cover.flac
