# Headers of the standard library, of Qt and of the test framework are read once for all sources of a
# kind: to read them anew takes half of a build. scripts/build asks for it. A source includes what it
# uses all the same; plain calls of cmake, scripts/fuzz and scripts/check_tidy go without and see
# where it does not.
option(QUILLMERE_PRECOMPILE "Read the headers of libraries once for all sources" OFF)
if(QUILLMERE_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # With them g++ 12 also takes the lengths in its own string operator+ for ones that cannot be (GCC
    # bug 105651). A build without them has these warnings.
    target_compile_options(quillmere_options INTERFACE
        -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
endif()

set(quillmere_standard_headers <algorithm> <array> <charconv> <cstddef> <cstdint>
    <fstream> <functional> <map> <memory> <optional> <set> <span> <sstream> <string> <string_view>
    <unordered_map> <utility> <vector>)
set(quillmere_qt_headers <QApplication> <QBoxLayout> <QComboBox> <QDialog> <QDir> <QLabel>
    <QLineEdit> <QMenu> <QPainter> <QPushButton> <QTextDocument> <QTextEdit> <QTimer>)

# quillmere_precompile(TARGET KIND) for the KINDs core, qt, core_test and qt_test. All targets of a
# kind are compiled with the same options.
function(quillmere_precompile target kind)
    if(NOT QUILLMERE_PRECOMPILE)
        return()
    endif()
    set(shared quillmere_headers_${kind})
    if(NOT TARGET ${shared})
        set(headers ${quillmere_standard_headers})
        set(empty ${PROJECT_BINARY_DIR}/${shared}.cpp)
        file(CONFIGURE OUTPUT ${empty} CONTENT "")
        add_library(${shared} STATIC ${empty})
        target_link_libraries(${shared} PRIVATE quillmere_options)
        if(kind MATCHES "qt")
            target_link_libraries(${shared} PRIVATE Qt6::Widgets)
            list(APPEND headers ${quillmere_qt_headers})
        endif()
        if(kind MATCHES "test")
            target_link_libraries(${shared} PRIVATE quillmere_test_options GTest::gtest)
            list(APPEND headers <gtest/gtest.h>)
        endif()
        target_precompile_headers(${shared} PRIVATE ${headers})
    endif()
    target_precompile_headers(${target} REUSE_FROM ${shared})
endfunction()
