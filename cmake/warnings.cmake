# One interface target carries what every file of the project is compiled with.
add_library(torvik_build INTERFACE)
target_compile_features(torvik_build INTERFACE cxx_std_20)
target_compile_options(torvik_build INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
target_compile_definitions(torvik_build INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER)
if(TORVIK_SANITIZE)
  target_compile_options(torvik_build INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                -fno-omit-frame-pointer)
  target_link_options(torvik_build INTERFACE -fsanitize=address,undefined)
endif()
if(TORVIK_COVERAGE)
  target_compile_options(torvik_build INTERFACE -fprofile-instr-generate -fcoverage-mapping)
  target_link_options(torvik_build INTERFACE -fprofile-instr-generate)
endif()
