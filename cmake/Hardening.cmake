# What makes an attacker's work harder, for all that is built, and what makes the build of a commit repeatable.

include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX) # Or programs would be linked by the compiler's default.

add_compile_options(-fstack-protector-strong)
add_link_options(LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack LINKER:--enable-new-dtags)

# The checked functions need an optimised build; the sanitizers bring checks of their own.
set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
if(NOT CORVIX_SANITIZE AND NOT CORVIX_FUZZ)
    # First undefined: some compilers define it themselves, with another value.
    add_compile_options($<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=2>)
endif()

# A release names no directory of the machine it was built on; a debugger of a debug build wants them.
add_compile_options(
    $<${optimised}:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>
    $<${optimised}:-ffile-prefix-map=${PROJECT_BINARY_DIR}=build>)
# From version 2 on the embedded files carry the time of their last change.
set(CMAKE_AUTORCC_OPTIONS --format-version 1)
