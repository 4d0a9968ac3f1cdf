# Run by scripts/fresh-machine on a machine that isn't ours: the package beside this file is
# installed, the program used for a moment by keyboard, the package removed. Fails when a file of it is left.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive LANG=C.UTF-8

# What the machine has that isn't the package manager's own book-keeping or the user's.
files() {
    sudo find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /tmp -o -path /home -o -path /var/lib/dpkg \
        -o -path /var/lib/apt -o -path /var/cache -o -path /var/log \) -prune -o -print | sort
}
packages() { dpkg-query --show --showformat '${Package}\n' | sort; }

sudo apt-get update -qq
sudo apt-get install -y -qq xvfb openbox xdotool scrot shared-mime-info desktop-file-utils man-db \
    dbus libglib2.0-0 systemd >/dev/null 2>&1
files >before.files
packages >before.packages

sudo apt-get install -y -qq ./corvana_*.deb >/dev/null 2>&1
echo "installed: $(dpkg-query --listfiles corvana | wc -l) files, and $(packages | comm -13 before.packages - | wc -l) packages"
[ -e /usr/share/mime/application/x-corvana-melody.xml ]
man --where corvana >/dev/null

Xvfb :9 -screen 0 1280x960x24 -nolisten tcp >/dev/null 2>&1 &
screen=$!
export DISPLAY=:9
until xdotool getdisplaygeometry >/dev/null 2>&1; do sleep 0.1; done
openbox >/dev/null 2>&1 &
corvana &
program=$!
xdotool search --sync --onlyvisible --name '^Corvana' >/dev/null
xdotool sleep 2 key F1 sleep 2
scrot --overwrite used.png
kill -TERM "$program"
wait "$program"
kill "$screen"
echo "the user's own:"
find ~/.config/corvana ~/.local/state/corvana ~/.cache/corvana -type f 2>/dev/null || true

sudo apt-get purge -y -qq corvana >/dev/null 2>&1
comm -23 <(packages) before.packages | xargs -r sudo apt-get purge -y -qq >/dev/null 2>&1
echo "left behind:"
files | comm -13 before.files - | tee left.files
[ ! -s left.files ]
echo "nothing"
