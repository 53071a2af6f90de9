# The Debian packages that the project needs, and functions that install them and build a preset. Sourced by the other
# scripts.

build_packages=(g++ cmake ninja-build ccache pkg-config libwxgtk3.2-dev libgtk-3-dev libpugixml-dev libsqlite3-dev
    libsqlitecpp-dev libcli11-dev libssl-dev libutf8proc-dev)
test_packages=(libgtest-dev libgmock-dev at-spi2-core dbus python3-gi gir1.2-atspi-2.0)
fuzz_packages=(clang libclang-rt-14-dev)
# For the benchmark: the test libraries (for the test doubles), the libraries it compares with, JSON output and plots.
bench_packages=(libgtest-dev libgmock-dev libxml2-dev nlohmann-json3-dev gnuplot-nox)
# A virtual display: the server, a window manager, and the icons and fonts of the windows.
display_packages=(xvfb metacity adwaita-icon-theme fonts-inter)
# The cross-build for Windows: compilers, the interface compiler and its input, and tools for building the libraries.
windows_packages=(g++ g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools libwine-dev libwine ccache
    cmake ninja-build make dpkg-dev tcl pkg-config)

# need PACKAGE...: installs the missing packages and prints their names.
need() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "Installing Debian packages: ${missing[*]}"
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" apt-get update -qq
    DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" \
        >/dev/null
}

# build PRESET [CONFIGURE OPTION...]: configures and builds a preset. Prints the log only after a failure.
build() {
    local log
    log=$(mktemp)
    if ! { cmake --preset "$@" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache && cmake --build --preset "$1"; } >"$log" 2>&1; then
        tail -n 60 "$log" >&2
        echo "The build failed. Its complete output is in $log" >&2
        return 1
    fi
    rm -f "$log"
}

# build_for_windows 64|32 [PRESET]: builds the preset of these bits, or the given one, with cross-built libraries.
build_for_windows() {
    local libraries
    need "${windows_packages[@]}"
    libraries=$(scripts/windows-libraries "$1")
    # wxWidgets is the last library; its wx-config tells CMake the options.
    build "${2:-windows-$1}" "-DCMAKE_PREFIX_PATH=$libraries" -DwxWidgets_CONFIG_EXECUTABLE="${libraries##*;}/bin/wx-config"
}

# The Debian archive that this machine installs from.
debian_mirror() {
    apt-get indextargets --format '$(REPO_URI) $(ORIGIN) $(LABEL) $(RELEASE)' 'Created-By: Packages' |
        awk '$2 == "Debian" && $3 == "Debian" && $4 !~ /-/ { print $1; exit }'
}
