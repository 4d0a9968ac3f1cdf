# How a command is run as an ordinary user would run it. Sourced.

# learner RIGHT: sets the array as_learner, to be put before a command. RIGHT is "without" or "with"
# the right to real-time scheduling. Root becomes a user who has no other right; any other user stays
# who he is and can only give it up.
learner() {
    local become=(setpriv --reuid=nobody --regid=nogroup --clear-groups --no-new-privs)
    local nothing=(prlimit --rtprio=0:0 env DBUS_SYSTEM_BUS_ADDRESS=disabled:)
    case "$(id -u):$1" in
    0:without) as_learner=("${become[@]}" --inh-caps=-all --bounding-set=-all "${nothing[@]}") ;;
    0:with) as_learner=("${become[@]}" --inh-caps=-all,+sys_nice --bounding-set=-all,+sys_nice
        --ambient-caps=+sys_nice "${nothing[@]}") ;;
    *:without) as_learner=("${nothing[@]}") ;;
    *:with) as_learner=(env) ;;
    esac
}

# learner_folder: makes an empty folder of that user's own and prints its name.
learner_folder() {
    local folder
    folder=$(mktemp -d)
    [ "$(id -u)" -ne 0 ] || chown nobody:nogroup "$folder"
    echo "$folder"
}
