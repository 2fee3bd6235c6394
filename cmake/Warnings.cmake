# One interface target carries the warnings, the sanitizers and the hardening to every target of
# ours.
add_library(lanternix_warnings INTERFACE)
target_compile_options(
  lanternix_warnings
  INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
            -Woverloaded-virtual -Wnull-dereference -Wformat=2 -Wimplicit-fallthrough -Werror)
target_compile_definitions(
  lanternix_warnings
  INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
            QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH QT_NO_KEYWORDS
            QT_DISABLE_DEPRECATED_BEFORE=0x060400
  QT_WARN_DEPRECATED_UP_TO=0x060400)

if(LANTERNIX_SANITIZE)
  target_compile_options(lanternix_warnings INTERFACE -fsanitize=address,undefined
                                                      -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(lanternix_warnings INTERFACE -fsanitize=address,undefined)
endif()

if(LANTERNIX_TIDY)
  find_program(CLANG_TIDY NAMES clang-tidy REQUIRED)
endif()
