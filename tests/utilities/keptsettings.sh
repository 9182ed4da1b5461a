#!/bin/sh
# Changes every setting in one instrument, and reads it in the next one over the same state directory.
#
#   keptsettings.sh CHECKOUT BUILD
set -u
state=$(mktemp -d /tmp/keptsettings.XXXXXX)
trap 'rm -rf "$state"' EXIT
for step in freshUnit prefixComesBack changeEverySetting everySettingIsThere fileIsWholeOrNotAtAll; do
    "$1/simulator/instrument" --build "$2" --profile full --state "$state" -- "$2/tests/tst_keptsettings" "$step" || exit 1
done
