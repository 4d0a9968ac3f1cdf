# Which Debian packages each job needs, and how they are installed. Sourced by ./run, ./test,
# ./measure, scripts/package and .ci/run.

build_packages=(g++ cmake ninja-build ccache mold pkg-config qt6-base-dev qt6-svg-dev libxcb1-dev
    libfontconfig-dev libsdl2-dev libsystemd-dev libfluidsynth-dev librtmidi-dev libasound2-dev
    libjack-jackd2-dev)
run_packages=("${build_packages[@]}" timgm6mb-soundfont fonts-inter fonts-oflb-euterpe)
screen_packages=(xvfb openbox xdotool scrot)
test_packages=("${run_packages[@]}" libgtest-dev librapidcheck-dev locales pulseaudio
    pulseaudio-utils jackd2 dbus-daemon at-spi2-core xvfb openbox xdotool)
lint_packages=(clang-format clang-tidy clang libclang-rt-14-dev cppcheck)
package_packages=(dpkg-dev file man-db lintian appstream desktop-file-utils shared-mime-info libxml2-utils)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# install_missing PACKAGE...: installs those that aren't there, and says which.
install_missing() {
    local missing=() package
    for package in "$@"; do
        [ -e "/var/lib/dpkg/info/$package.list" ] ||
            compgen -G "/var/lib/dpkg/info/$package:*.list" >/dev/null || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "Installing Debian packages: ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET [TARGET...]: configures when needed, then builds what is out of date.
build() {
    local preset=$1
    shift
    if [ ! -e "build/$preset/build.ninja" ]; then
        echo "Building ($preset): the first time takes a few minutes."
        cmake --preset "$preset" >/dev/null
    fi
    cmake --build --preset "$preset" ${1:+--target "$@"} -- --quiet
}
