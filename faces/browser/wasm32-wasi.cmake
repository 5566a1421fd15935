# Builds WebAssembly with Debian's clang, wasi-libc and libc++: no exceptions, no threads, and no
# program around it but the page that loads it.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
set(CMAKE_CXX_FLAGS_INIT "-fno-exceptions -fno-rtti -fno-threadsafe-statics")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-mexec-model=reactor")
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
