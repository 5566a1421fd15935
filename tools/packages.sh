# The Debian packages that Zelvo needs, for the scripts at the top of the tree.
# shellcheck shell=bash disable=SC2034 # each script takes what it needs
play_packages=(g++ cmake ninja-build qt6-base-dev 'qt6-svg-dev|libqt6svg6-dev' libpulse-dev libxcb1-dev
  fonts-dejavu-core)
# To open windows in a session of Wayland.
wayland_packages=(qt6-wayland)
check_packages=("${play_packages[@]}" git clang clang-tidy libgtest-dev nlohmann-json3-dev libgl-dev
  pulseaudio   'libclang-rt-dev|libclang-rt-14-dev|libclang-common-14-dev')
# clang-tidy reads the benchmarks as well.
tidy_packages=(python3 libbenchmark-dev)
package_packages=(dpkg-dev desktop-file-utils appstream lintian mandoc)
# For the tests of the real program: a screen, a window manager, a sound server and a bus of their own.
machine_packages=(python3 xvfb xauth x11-utils openbox xdotool wmctrl pulseaudio pulseaudio-utils dbus
  locales at-spi2-core python3-pyatspi
  x11-xserver-utils i3-wm weston sway "${wayland_packages[@]}")
# For the page.
page_packages=(clang cmake ninja-build lld binaryen wasi-libc python3 brotli librsvg2-bin esbuild
  'libc++-dev-wasm32|libc++-14-dev-wasm32' 'libclang-rt-dev-wasm32|libclang-rt-14-dev-wasm32')
# For the tests of the page. Where npm is, from the archive or not, there is no need of another.
npm_packages=()
command -v npm >/dev/null || npm_packages+=(nodejs npm)
browser_packages=("${page_packages[@]}" "${npm_packages[@]}" chromium)
format_packages=(git clang-format shellcheck pyflakes3 "${npm_packages[@]}")
all_packages=("${check_packages[@]}" "${tidy_packages[@]}" "${machine_packages[@]}"
  "${browser_packages[@]}" "${format_packages[@]}")
