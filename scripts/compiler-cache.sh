# Sourced by the build scripts: sets `launcher` to the CMake option that puts
# ccache in front of the compiler, when ccache is there. Paths are hashed
# relative to this checkout, so a fresh clone elsewhere reuses the cache.
launcher=()
if command -v ccache >/dev/null; then
  export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1
  launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
