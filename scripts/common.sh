# Shared by ./run, ./test and .ci/run: installing what is missing, and quiet steps.
# To be sourced from the project's root.

set -u
log_dir="${TMPDIR:-/tmp}/vkintensity-logs.$(id -u)"
mkdir -p "$log_dir"

run_packages="g++ cmake ninja-build qtbase5-dev libopencv-core-dev libopencv-imgcodecs-dev libhwy-dev fonts-dejavu-core qttools5-dev qttools5-dev-tools"
test_packages="$run_packages xvfb xauth xdotool pkg-config fonts-wqy-microhei python3"
ci_packages="$test_packages libbenchmark-dev clang clang-format binutils doxygen lintian dpkg-dev file appstream desktop-file-utils qt6-base-dev qt6-l10n-tools"

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# quietly NAME COMMAND...: runs the command; its output is shown only when it fails.
quietly() {
    local name=$1 log="$log_dir/$1.log"
    shift
    if ! "$@" >"$log" 2>&1; then
        tail -n 60 "$log" >&2
        fail "$name failed (whole output in $log)"
    fi
}

# install_missing PACKAGE...: installs the Debian packages that are not there; says nothing when all are.
install_missing() {
    command -v dpkg-query >/dev/null || return 0 # not a Debian system: the build will tell
    local package missing=""
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed \
            || missing="$missing $package"
    done
    [ -z "$missing" ] && return 0
    local as_root=""
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "please install as root: apt-get install$missing"
        as_root=sudo
    fi
    echo "Installing$missing"
    quietly apt-update $as_root apt-get update
    # shellcheck disable=SC2086
    quietly apt-install $as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends $missing
}

# build PRESET [TARGET...]: configures when needed and builds.
build() {
    local preset=$1
    shift
    [ -f "build/$preset/build.ninja" ] || echo "Configuring and building ($preset), this takes a while the first time"
    quietly "configure-$preset" cmake --preset "$preset"
    quietly "build-$preset" cmake --build --preset "$preset" ${1:+--target "$@"}
}
