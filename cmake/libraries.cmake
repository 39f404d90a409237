# quillmere_library(NAME folder USES ...) makes the library of one folder of src/ from its files.
# Files that need Qt end in _qt.cpp and go into NAME_qt, so that the core links without Qt.
function(quillmere_library name folder)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "USES")
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${folder}/*.cpp)
    list(FILTER sources EXCLUDE REGEX "_qt\\.cpp$")
    add_library(${name} STATIC ${sources})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC quillmere_options ${arg_USES})

    file(GLOB_RECURSE qt_sources CONFIGURE_DEPENDS ${folder}/*_qt.cpp)
    if(QUILLMERE_QT AND qt_sources)
        find_package(Qt6 6.4 REQUIRED COMPONENTS Gui)
        add_library(${name}_qt STATIC ${qt_sources})
        target_link_libraries(${name}_qt PUBLIC ${name} Qt6::Gui)
    endif()
endfunction()

# quillmere_qt_library(NAME folder USES ...) makes the library of a folder whose files all may use Qt
# Widgets, without the folders below it.
function(quillmere_qt_library name folder)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "USES")
    if(NOT QUILLMERE_QT)
        return()
    endif()
    find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
    file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
    add_library(${name} STATIC ${sources})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC quillmere_options Qt6::Widgets ${arg_USES})
endfunction()
