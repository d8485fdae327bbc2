# mdbgen: the Java tool (tools/mdbgen, Jackcess) that builds the Jet 4 .mdb files the tests read
# from JSON descriptions, and dumps any .mdb as canonical JSON for round-trip checks.
#
#   mdbgen_jar                       target that builds the tool (Maven), output ${MDBGEN_JAR}
#   upsizer_mdb(<target> DESCRIPTION <json> OUTPUT <mdb> [ROWS <n>] [TABLE_ROWS <table=n>...]
#               [DEPENDS <targets>...])
#   upsizer_mdb_dump(<target> INPUT <mdb> OUTPUT <json> [USER_ROWS_ONLY] [DEPENDS <targets>...])
#   upsizer_solvaria_mdb(<target> OUTPUT <mdb> [ROWS <n>] [VARIANT <v>] [DEPENDS <targets>...])
#
# Ready-made Solvaria-shaped sources in ${MDBGEN_SOLVARIA_DIR} (none is part of "all"):
#   solvaria_small       solvaria-small.mdb, 1,000 records in the main archive
#   solvaria_findings_V  solvaria-findings-V.mdb for V in dates nullkey memoindex index900 index901
#   solvaria_bench       solvaria-200k.mdb, 200,000 records in the main archive
#
# Both make the file at build time; tests depend on <target>. MDBGEN_AVAILABLE tells whether
# the tool can be built here (it needs a Java 17 runtime and Maven with Maven Central).

option(UPSIZER_MDBGEN "Build tools/mdbgen and the .mdb files the tests need" ON)

set(MDBGEN_AVAILABLE OFF)
set(MDBGEN_SOURCE_DIR ${CMAKE_CURRENT_LIST_DIR}/../tools/mdbgen)
get_filename_component(MDBGEN_SOURCE_DIR ${MDBGEN_SOURCE_DIR} ABSOLUTE)
set(MDBGEN_BUILD_DIR ${CMAKE_BINARY_DIR}/mdbgen)
set(MDBGEN_JAR ${MDBGEN_BUILD_DIR}/mdbgen.jar)
set(MDBGEN_STAMP ${MDBGEN_BUILD_DIR}/mdbgen.stamp)
# The rows of one .mdb are built in batches; the heap stays flat even for a million rows.
set(MDBGEN_JAVA_OPTIONS -Xmx1g CACHE STRING "JVM options for running mdbgen")

if(UPSIZER_MDBGEN)
    find_package(Java 17 COMPONENTS Runtime)
    find_program(MDBGEN_MVN NAMES mvn)
    if(NOT Java_JAVA_EXECUTABLE OR NOT MDBGEN_MVN)
        message(FATAL_ERROR
            "mdbgen needs a Java 17 runtime and Maven (scripts/setup-deps.sh installs both); "
            "configure with -DUPSIZER_MDBGEN=OFF to build without the generated .mdb files")
    endif()
    set(MDBGEN_AVAILABLE ON)

    file(GLOB_RECURSE _mdbgen_sources CONFIGURE_DEPENDS ${MDBGEN_SOURCE_DIR}/src/main/*)
    set(_mdbgen_mvn ${MDBGEN_MVN} -q -B -f ${MDBGEN_SOURCE_DIR}/pom.xml -Dmdbgen.buildDir=${MDBGEN_BUILD_DIR})
    add_custom_command(
        OUTPUT ${MDBGEN_STAMP}
        BYPRODUCTS ${MDBGEN_JAR}
        COMMAND ${_mdbgen_mvn} package -DskipTests
        COMMAND ${CMAKE_COMMAND} -E touch ${MDBGEN_STAMP}
        DEPENDS ${MDBGEN_SOURCE_DIR}/pom.xml ${_mdbgen_sources}
        WORKING_DIRECTORY ${MDBGEN_SOURCE_DIR}
        COMMENT "Building mdbgen (Maven)"
        VERBATIM)
    add_custom_target(mdbgen_jar DEPENDS ${MDBGEN_STAMP})

    if(UPSIZER_BUILD_TESTS)
        # The tool's own few JUnit tests (Surefire); they build small databases in the build tree.
        add_test(NAME mdbgen.java COMMAND ${_mdbgen_mvn} test WORKING_DIRECTORY ${MDBGEN_SOURCE_DIR})
        set_tests_properties(mdbgen.java PROPERTIES LABELS "mdbgen;java" TIMEOUT 600)
    endif()
endif()

# One mdbgen run that makes OUTPUT (absolute) from INPUTS, with the tool's ARGS before OUTPUT, as
# the custom target <target>; DEPENDS are targets to build first.
function(_upsizer_mdbgen_run target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "OUTPUT;COMMENT" "ARGS;INPUTS;DEPENDS")
    add_custom_command(
        OUTPUT ${arg_OUTPUT}
        COMMAND ${Java_JAVA_EXECUTABLE} ${MDBGEN_JAVA_OPTIONS} -jar ${MDBGEN_JAR} ${arg_ARGS} ${arg_OUTPUT}
        DEPENDS ${arg_INPUTS} ${MDBGEN_STAMP} mdbgen_jar
        COMMENT "${arg_COMMENT}"
        VERBATIM)
    add_custom_target(${target} DEPENDS ${arg_OUTPUT})
    if(arg_DEPENDS)
        add_dependencies(${target} ${arg_DEPENDS})
    endif()
endfunction()

function(upsizer_mdb target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESCRIPTION;OUTPUT;ROWS" "TABLE_ROWS;DEPENDS")
    if(NOT arg_DESCRIPTION OR NOT arg_OUTPUT)
        message(FATAL_ERROR "upsizer_mdb(${target}): DESCRIPTION and OUTPUT are required")
    endif()
    if(NOT MDBGEN_AVAILABLE)
        return()
    endif()
    get_filename_component(description ${arg_DESCRIPTION} ABSOLUTE)
    get_filename_component(output ${arg_OUTPUT} ABSOLUTE BASE_DIR ${CMAKE_CURRENT_BINARY_DIR})
    set(options)
    if(DEFINED arg_ROWS)
        list(APPEND options --rows ${arg_ROWS})
    endif()
    foreach(tr IN LISTS arg_TABLE_ROWS)
        list(APPEND options --rows ${tr})
    endforeach()
    _upsizer_mdbgen_run(${target} OUTPUT ${output} COMMENT "mdbgen: ${arg_OUTPUT}"
        ARGS build ${options} ${description} INPUTS ${description} DEPENDS ${arg_DEPENDS})
endfunction()

function(upsizer_mdb_dump target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "USER_ROWS_ONLY" "INPUT;OUTPUT" "DEPENDS")
    if(NOT arg_INPUT OR NOT arg_OUTPUT)
        message(FATAL_ERROR "upsizer_mdb_dump(${target}): INPUT and OUTPUT are required")
    endif()
    if(NOT MDBGEN_AVAILABLE)
        return()
    endif()
    get_filename_component(input ${arg_INPUT} ABSOLUTE BASE_DIR ${CMAKE_CURRENT_BINARY_DIR})
    get_filename_component(output ${arg_OUTPUT} ABSOLUTE BASE_DIR ${CMAKE_CURRENT_BINARY_DIR})
    set(options)
    if(arg_USER_ROWS_ONLY)
        list(APPEND options --user-rows-only)
    endif()
    _upsizer_mdbgen_run(${target} OUTPUT ${output} COMMENT "mdbgen dump: ${arg_OUTPUT}"
        ARGS dump ${options} ${input} INPUTS ${input} DEPENDS ${arg_DEPENDS})
endfunction()

# A QZSystem.mdb of the suite's shape, built from schema/catalogue.tsv (see tools/mdbgen/README.md,
# "Solvaria-shaped sources"). ROWS is the record count of the main archive (default 1000);
# VARIANT adds one archive with a verification finding.
function(upsizer_solvaria_mdb target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "OUTPUT;ROWS;VARIANT" "DEPENDS")
    if(NOT arg_OUTPUT)
        message(FATAL_ERROR "upsizer_solvaria_mdb(${target}): OUTPUT is required")
    endif()
    if(NOT MDBGEN_AVAILABLE)
        return()
    endif()
    get_filename_component(output ${arg_OUTPUT} ABSOLUTE BASE_DIR ${CMAKE_CURRENT_BINARY_DIR})
    set(options)
    if(DEFINED arg_ROWS)
        list(APPEND options --rows ${arg_ROWS})
    endif()
    if(DEFINED arg_VARIANT)
        list(APPEND options --variant ${arg_VARIANT})
    endif()
    _upsizer_mdbgen_run(${target} OUTPUT ${output} COMMENT "mdbgen solvaria: ${arg_OUTPUT}"
        ARGS solvaria --catalogue ${MDBGEN_CATALOGUE} ${options}
        INPUTS ${MDBGEN_CATALOGUE} DEPENDS ${arg_DEPENDS})
endfunction()

set(MDBGEN_CATALOGUE ${CMAKE_CURRENT_LIST_DIR}/../schema/catalogue.tsv)
get_filename_component(MDBGEN_CATALOGUE ${MDBGEN_CATALOGUE} ABSOLUTE)
set(MDBGEN_SOLVARIA_DIR ${CMAKE_BINARY_DIR}/solvaria)
if(MDBGEN_AVAILABLE)
    upsizer_solvaria_mdb(solvaria_small OUTPUT ${MDBGEN_SOLVARIA_DIR}/solvaria-small.mdb ROWS 1000)
    foreach(variant dates nullkey memoindex index900 index901)
        upsizer_solvaria_mdb(solvaria_findings_${variant}
            OUTPUT ${MDBGEN_SOLVARIA_DIR}/solvaria-findings-${variant}.mdb ROWS 20 VARIANT ${variant})
    endforeach()
    upsizer_solvaria_mdb(solvaria_bench OUTPUT ${MDBGEN_SOLVARIA_DIR}/solvaria-200k.mdb ROWS 200000)
endif()
