# Settings shared by every target of the project: language level, warnings,
# Qt's automatic tools and one output folder for all executables, so that
# the application and the tests find the generated Resources/ folder beside them.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

# A program's desktop id is this prefix and its name: the name of its icons,
# menu entry and metadata.
set(QM_APP_ID_PREFIX "com.corvane.")
set(QM_APP_ID "${QM_APP_ID_PREFIX}GuitarTonarium")

# Installed, the programs live in lib/tonarium/ with their Resources/ folder
# beside them, as in the build; bin/ holds a link to each.
set(QM_PACKAGE "tonarium")
# The instruments whose note finders stand beside the guitar's, each a
# program <Instrument>Tonarium with its pictures in art_<Instrument>.qrc and
# its slides in Resources/<program>/.
set(QM_FINDER_INSTRUMENTS Ukulele Violin Bass Balalaika Banjo Mandolin Piano)
set(QM_INSTALL_PROGRAM_DIR "lib/${QM_PACKAGE}")

# The folder beside the executables that holds samples and slides.
set(QM_BUNDLE_RESOURCES_DIR "${CMAKE_BINARY_DIR}/bin/Resources")

find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets Multimedia Network DBus Test)

add_library(qm_common INTERFACE)
target_compile_options(qm_common INTERFACE -Wall -Wextra)

# A build for finding memory faults and undefined behaviour: every target of
# the project is compiled and linked with AddressSanitizer (leaks included)
# and UndefinedBehaviorSanitizer; any report ends the program with an error.
option(QM_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
if(QM_SANITIZE)
    set(QM_SANITIZER_FLAGS -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_compile_options(qm_common INTERFACE ${QM_SANITIZER_FLAGS})
    target_link_options(qm_common INTERFACE ${QM_SANITIZER_FLAGS})
    # The generators run during the build: what they keep until exit is no fault of the pictures.
    set(QM_TOOL_ENV ASAN_OPTIONS=detect_leaks=0)
endif()

# Fuzzing targets (clang only): the libraries get the fuzzer's coverage
# instrumentation and the sanitizers; each target links libFuzzer's main.
option(QM_FUZZ "Build the fuzzing targets (needs clang)" OFF)
if(QM_FUZZ)
    set(QM_FUZZ_FLAGS -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined)
    target_compile_options(qm_common INTERFACE ${QM_FUZZ_FLAGS})
    target_link_options(qm_common INTERFACE -fsanitize=address,undefined)
endif()
target_compile_definitions(qm_common INTERFACE
    QT_DEPRECATED_WARNINGS_SINCE=0x050F00)

# qm_add_test(<name> SOURCES <files> LIBS <targets>)
# One QtTest executable per test file, run headless by CTest.
function(qm_add_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE qm_common Qt5::Test ${ARG_LIBS})
    target_compile_definitions(${name} PRIVATE SRCDIR="${CMAKE_CURRENT_SOURCE_DIR}/")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
