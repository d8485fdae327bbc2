# One static library per top-level folder. Each states the folders it may use, on one line;
# the layer check below turns an include that reaches outside them into a build failure.

add_library(upsizer_defaults INTERFACE)
target_compile_features(upsizer_defaults INTERFACE cxx_std_20)
target_compile_definitions(upsizer_defaults INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
if(MSVC)
    target_compile_options(upsizer_defaults INTERFACE /W4 /permissive- /utf-8)
    if(UPSIZER_WERROR)
        target_compile_options(upsizer_defaults INTERFACE /WX)
    endif()
else()
    target_compile_options(upsizer_defaults INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
    if(UPSIZER_WERROR)
        target_compile_options(upsizer_defaults INTERFACE -Werror)
    endif()
    # Optimising across files at link time, GCC 12 takes the size of a copied Qt hash table for
    # one that may exceed memory: a false alarm at every link.
    if(CMAKE_INTERPROCEDURAL_OPTIMIZATION AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_link_options(upsizer_defaults INTERFACE -Wno-alloc-size-larger-than)
    endif()
endif()

set_property(GLOBAL PROPERTY UPSIZER_LAYER_DEPS "")

# upsizer_library(<folder> SOURCES ... DEPENDS <folders>... [LIBS <private libraries>...])
function(upsizer_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS;LIBS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_DEPENDS} Qt6::Core PRIVATE upsizer_defaults ${ARG_LIBS})
    # Commas inside an entry, since the entries themselves travel as a list.
    list(JOIN ARG_DEPENDS "," direct)
    set_property(GLOBAL APPEND PROPERTY UPSIZER_LAYER_DEPS "${name}:${direct}")
endfunction()

# Runs at every build: fails on an #include "<folder>/..." that the folder's dependencies
# (followed transitively) do not allow.
function(upsizer_layer_check)
    get_property(deps GLOBAL PROPERTY UPSIZER_LAYER_DEPS)
    list(JOIN deps "|" joined)
    add_custom_target(layer_check ALL
        COMMAND ${CMAKE_COMMAND} -DROOT=${PROJECT_SOURCE_DIR} "-DDEPS=${joined}"
                "-DLAYERS=${UPSIZER_LAYERS}" -P ${PROJECT_SOURCE_DIR}/cmake/CheckLayers.cmake
        COMMENT "Checking that includes point down the layers"
        VERBATIM)
endfunction()
