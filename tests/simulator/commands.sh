#!/bin/sh
# Calls the commands of the checkout with options that are wrong, and asks them for help: they say what is wrong, or
# what there is, and begin nothing.
. "$(dirname "$0")/checks.sh"
cd "$checkout" || exit 1

while IFS='|' read -r command status text; do
    # shellcheck disable=SC2086 # words of the command
    output=$(timeout 60 $command 2>&1 </dev/null)
    expect "$command" "$status, told" "$?, $(case $output in *"$text"*) echo told ;; *) echo "$output" ;; esac)"
done <<'TABLE'
./run --help|0|--port N
./run --port|2|--port needs a value
./run --state --release|2|--state needs a value
./run --port 0|2|'0' is no port
./run --port 65536|2|'65536' is no port
./run --port 08|2|'08' is no port
./run --port abc|2|'abc' is no port
./run now|2|'now' is unknown
./test --help|0|--jobs N
./test --jobs|2|--jobs needs a number
./test --jobs -R|2|not '-R'
./test --jobs 0|2|not '0'
./test topbar|2|'topbar' belongs to no option
./test -R topbar lock|2|'lock' belongs to no option
./test -V lock|2|'lock' belongs to no option
scripts/install-deps --help|0|scripts/install-deps [all|
scripts/install-deps tests|2|'tests' is none of
scripts/lint --help|0|scripts/lint [--quick]
scripts/lint --fast|2|'--fast' is unknown
scripts/update-translations --help|0|FILE.ts
scripts/update-translations german|2|'german' is no .ts file
simulator/instrument --help|0|--profile
simulator/instrument --join some -- true|2|needs a number or newest
simulator/instrument --segment-size 0 -- true|2|can not be made
simulator/simctl --help|0|wifi off|idle|link Q
simulator/simctl -i here status|2|not 'here'
simulator/serve|2|usage: serve PORT COMMAND
bench/run --help|0|bench
bench/run everything|2|unknown: everything
TABLE

finish
