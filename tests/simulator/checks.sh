# What the tests of the instrument's commands share; each begins with:  . "$(dirname "$0")/checks.sh"
# and is called with CHECKOUT BUILD, which become $checkout and $build.
set -u
checkout=$1
build=$2
# Why a backend can not be used here, or nothing
refusal_of() {
    "$checkout/simulator/instrument" --build "$build" --backend "$1" --profile bare -- true 2>&1 || echo 'it fails'
}
backend=${INSTRUMENT_BACKEND:-namespaces}
[ -z "$(refusal_of $backend)" ] || backend=proot
case $backend in
namespaces) scratch=$(mktemp -d "/tmp/instrument test,1:XXXXXX") ;; # characters that mount options give a meaning to
*) scratch=$(mktemp -d "/tmp/instrument test,1.XXXXXX") ;; # a colon is proot's own
esac
export TMPDIR # where proot's trees stand
TMPDIR=$(mktemp -d /tmp/instrument-test.XXXXXX)
started=
failures=0
trap 'end_started; rm -rf "$scratch" "$TMPDIR"' EXIT

# Ends what the test put into $started, by process number.
end_started() {
    for pid in $started; do
        kill -KILL "$pid" 2>/dev/null
    done
}

# The `for` of a test cannot stop at the first failure, so that one run shows all of them.
finish() {
    [ $failures -eq 0 ] || echo "$failures failed"
    exit $((failures > 0))
}

instrument() {
    "$checkout/simulator/instrument" --build "$build" "$@"
}

bare() {
    instrument --profile bare "$@"
}

# expect WHAT EXPECTED ACTUAL
expect() {
    if [ "$2" = "$3" ]; then
        echo "ok      $1"
    else
        failures=$((failures + 1))
        printf 'FAILED  %s\n        expected: %s\n        actual:   %s\n' "$1" "$2" "$3"
    fi
}

# skip WHAT REASON: ./test prints it at the end
skip() {
    echo "SKIP   : $(basename "$0"): $1: $2"
}

# within WHAT COMMAND...: COMMAND succeeds within 20 s
within() {
    what=$1
    shift
    tries=400
    until "$@"; do
        tries=$((tries - 1))
        if [ $tries -eq 0 ]; then
            expect "$what" 'in time' 'never'
            return
        fi
        sleep 0.05
    done
    expect "$what" 'in time' 'in time'
}

status_of() {
    "$@" >/dev/null 2>&1
    echo $?
}
