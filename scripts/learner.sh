# Runs a command as an ordinary user would. Sourced.

# as_learner RIGHT COMMAND...: RIGHT is "without" or "with" the right to real-time scheduling. Root
# becomes a user who has no other right; any other user stays who he is and can only give it up.
as_learner() {
    local right=$1 become=(setpriv --reuid=nobody --regid=nogroup --clear-groups --no-new-privs)
    local nothing=(prlimit --rtprio=0:0 env DBUS_SYSTEM_BUS_ADDRESS=disabled:)
    shift
    case "$(id -u):$right" in
    0:without) "${become[@]}" --inh-caps=-all --bounding-set=-all "${nothing[@]}" "$@" ;;
    0:with) "${become[@]}" --inh-caps=-all,+sys_nice --bounding-set=-all,+sys_nice \
        --ambient-caps=+sys_nice "${nothing[@]}" "$@" ;;
    *:without) "${nothing[@]}" "$@" ;;
    *:with) "$@" ;;
    esac
}
