# A virtual X screen of our own. Sourced.

# start_virtual_screen WIDTHxHEIGHT: sets DISPLAY and screen_pid.
start_virtual_screen() {
    local fifo number
    fifo=$(mktemp -u)
    mkfifo "$fifo"
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp 3>"$fifo" 2>/dev/null &
    screen_pid=$!
    read -r number <"$fifo"
    rm -f "$fifo"
    export DISPLAY=:$number
}

stop_virtual_screen() {
    kill "$screen_pid" 2>/dev/null || true
    wait "$screen_pid" 2>/dev/null || true
}
