# One interface target carries the warnings (errors, all of them) and the sanitizers.
add_library(verandis_warnings INTERFACE)
target_compile_options(verandis_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
    # GCC 12 takes the library's own string concatenation for an overlapping copy.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

if(VERANDIS_SANITIZE)
    target_compile_options(verandis_warnings INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(verandis_warnings INTERFACE -fsanitize=address,undefined)
endif()
if(VERANDIS_FUZZ)
    target_compile_options(verandis_warnings INTERFACE -fsanitize=fuzzer-no-link)
endif()
