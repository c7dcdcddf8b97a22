# What every target of the program shares, and the two ways in which targets are made.

add_library(das_options INTERFACE)
target_compile_definitions(das_options INTERFACE
    QT_NO_FOREACH QT_NO_CAST_TO_ASCII QT_DISABLE_DEPRECATED_BEFORE=0x060400
    DAS_VERSION="${PROJECT_VERSION}")
if(MSVC)
    target_compile_options(das_options INTERFACE /W4 /utf-8 /permissive- $<$<BOOL:${DAS_WARNINGS_AS_ERRORS}>:/WX>)
else()
    target_compile_options(das_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
        -Woverloaded-virtual -Wimplicit-fallthrough $<$<BOOL:${DAS_WARNINGS_AS_ERRORS}>:-Werror>)
endif()

# das_precompiler(TARGET): lets a target use the precompiled headers. One host serves all targets with the same
# definitions of their own; it defines no QT_..._LIB, for what the targets define beyond their host must not
# matter to the headers.
function(das_precompiler nom)
    if(NOT DAS_PCH OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        return()
    endif()
    get_target_property(definitions ${nom} COMPILE_DEFINITIONS)
    if("QT_USE_QSTRINGBUILDER" IN_LIST definitions)
        set(hote das_pch_stricts)
    else()
        set(hote das_pch_libres)
    endif()
    if(NOT TARGET ${hote})
        file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/pch/${hote}.cpp CONTENT "")
        add_library(${hote} STATIC ${PROJECT_BINARY_DIR}/pch/${hote}.cpp)
        set_target_properties(${hote} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF POSITION_INDEPENDENT_CODE ON)
        target_link_libraries(${hote} PRIVATE das_options)
        target_compile_definitions(${hote} PRIVATE $<$<NOT:$<CONFIG:Debug>>:QT_NO_DEBUG>)
        foreach(module Core Sql Gui Widgets)
            target_include_directories(${hote} SYSTEM PRIVATE
                $<TARGET_PROPERTY:Qt6::${module},INTERFACE_INCLUDE_DIRECTORIES>)
        endforeach()
        if(hote STREQUAL das_pch_stricts)
            set_target_properties(${hote} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
            target_compile_definitions(${hote} PRIVATE QT_NO_CAST_FROM_ASCII QT_USE_QSTRINGBUILDER)
        endif()
        target_precompile_headers(${hote} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/entetes_qt.h)
    endif()
    target_precompile_headers(${nom} REUSE_FROM ${hote})
endfunction()

# das_bibliotheque(NAME SOURCES file... DEPENDS target...)
# One static library a folder. An include names the header's folder ("rules/nombre.h"), and finds it only from
# a target that links the folder's library: one that includes what it may not use does not compile. For that
# each library shows forwarding headers of its own folder alone, made here.
function(das_bibliotheque nom)
    cmake_parse_arguments(arg "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(${nom} STATIC ${arg_SOURCES})
    file(RELATIVE_PATH dossier ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
    set(entetes ${PROJECT_BINARY_DIR}/entetes/${nom})
    file(GLOB presents CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} *.h)
    file(GLOB anciens RELATIVE ${entetes}/${dossier} ${entetes}/${dossier}/*.h)
    foreach(ancien IN LISTS anciens)
        if(NOT ancien IN_LIST presents)
            file(REMOVE ${entetes}/${dossier}/${ancien})
        endif()
    endforeach()
    file(RELATIVE_PATH retour ${entetes}/${dossier} ${CMAKE_CURRENT_SOURCE_DIR})
    foreach(present IN LISTS presents)
        file(CONFIGURE OUTPUT ${entetes}/${dossier}/${present} CONTENT "#include \"${retour}/${present}\"\n")
    endforeach()
    target_include_directories(${nom} PUBLIC ${entetes})
    target_link_libraries(${nom} PUBLIC ${arg_DEPENDS} PRIVATE das_options)
    target_compile_definitions(${nom} PRIVATE QT_NO_CAST_FROM_ASCII QT_USE_QSTRINGBUILDER)
    das_precompiler(${nom})
endfunction()

# das_test(NAME SOURCES file... DEPENDS target... [LABELS label...])
# One Qt Test program, run by CTest without a display and with a home folder of its own.
function(das_test nom)
    cmake_parse_arguments(arg "" "" "SOURCES;DEPENDS;LABELS" ${ARGN})
    add_executable(${nom} ${arg_SOURCES})
    target_include_directories(${nom} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${nom} PRIVATE ${arg_DEPENDS} Qt6::Test das_options)
    das_precompiler(${nom})
    add_test(NAME ${nom} COMMAND ${nom})
    set(foyer ${CMAKE_CURRENT_BINARY_DIR}/foyer-${nom})
    file(MAKE_DIRECTORY ${foyer})
    set_tests_properties(${nom} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;HOME=${foyer};XDG_CONFIG_HOME=${foyer}/.config"
        TIMEOUT 300 LABELS "${arg_LABELS}")
endfunction()
