#!/bin/sh
# Several instruments at once, reached from outside by simctl, and their end; with namespaces and without.
. "$(dirname "$0")/checks.sh"
simctl=$checkout/simulator/simctl
# proot traces its processes, and under a tracer a sanitizer build cannot look for leaks.
export ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0"

# start BACKEND: begins an instrument; its number is in $number. One of its processes outlives the command.
start() {
    "$checkout/simulator/instrument" --build "$build" --backend "$1" --profile bare --listed -- \
        sh -c '(exec sleep 86397) & (setsid sleep 86398 &); trap "exit 5" TERM; while :; do sleep 0.05; done' \
        >/dev/null 2>&1 &
    number=$!
    started="$started $number"
    within "$1: simctl reaches it" answers "$number"
}

answers() {
    "$simctl" -i "$1" status >/dev/null 2>&1
}

sleepers() {
    pgrep -f '^sleep 8639[78]$' | wc -l
}

none_sleep() {
    [ "$(sleepers)" -eq "$before" ]
}

wifi() {
    "$simctl" "$@" status 2>/dev/null | sed -n 's/^wifi *//p'
}

for backend in namespaces proot; do
    why=$(refusal_of $backend)
    if [ "$why" ]; then
        skip $backend "$why"
        continue
    fi
    before=$(sleepers)
    start $backend
    first=$number
    start $backend
    second=$number
    "$simctl" -i "$first" wifi idle
    "$simctl" -i "$second" wifi link 70
    expect "$backend: each has knobs of its own" 'idle, link 70' "$(wifi -i "$first"), $(wifi -i "$second")"
    expect "$backend: without a number, the newest" 'link 70' "$(wifi)"
    expect "$backend: and it says so" yes \
        "$("$simctl" status 2>&1 >/dev/null | grep -q "this is $second, the newest" && echo yes)"
    expect "$backend: a number that is none" "125, there are" \
        "$("$simctl" -i 1 status >"$scratch/answer" 2>&1; echo "$?, $(grep -o 'there are' "$scratch/answer")")"

    kill -TERM "$second"
    wait "$second"
    expect "$backend: the command's status after SIGTERM" 5 $?
    expect "$backend: the other one answers" idle "$(wifi)"
    kill -KILL "$first"
    wait "$first" 2>/dev/null
    within "$backend: nothing outlives a killed one" none_sleep
    expect "$backend: none is left to answer" 125 "$(status_of "$simctl" -i "$first" status)"
done

finish
