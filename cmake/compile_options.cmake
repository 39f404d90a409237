# One interface target carries what every target of the project is compiled with.
add_library(quillmere_options INTERFACE)
target_compile_options(quillmere_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast
    -Woverloaded-virtual -Wimplicit-fallthrough -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # g++ 12 warns of an overlap in its own string operator+ (GCC bug 105651).
    target_compile_options(quillmere_options INTERFACE -Wno-restrict)
endif()
if(QUILLMERE_SANITIZE)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # With sanitizers g++ 12 takes the library's own std::function for uninitialized.
        target_compile_options(quillmere_options INTERFACE -Wno-maybe-uninitialized)
    endif()
    target_compile_options(quillmere_options INTERFACE
        -fsanitize=${QUILLMERE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quillmere_options INTERFACE -fsanitize=${QUILLMERE_SANITIZE})
endif()
