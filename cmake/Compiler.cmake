# What every target of the project is compiled with, in two interface targets:
# corvalis_options for all, corvalis_qt_options for those that use Qt.
add_library(corvalis_options INTERFACE)
target_compile_options(corvalis_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wformat=2 -Wimplicit-fallthrough
  $<$<BOOL:${CORVALIS_WERROR}>:-Werror>)
target_compile_definitions(corvalis_options INTERFACE _FILE_OFFSET_BITS=64)

if(CORVALIS_SANITIZE)
  target_compile_options(corvalis_options INTERFACE -fsanitize=${CORVALIS_SANITIZE} -fno-omit-frame-pointer)
  target_link_options(corvalis_options INTERFACE -fsanitize=${CORVALIS_SANITIZE})
endif()
if(CORVALIS_FUZZ)
  target_compile_options(corvalis_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(CORVALIS_COVERAGE)
  target_compile_options(corvalis_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(corvalis_options INTERFACE --coverage)
endif()

add_library(corvalis_qt_options INTERFACE)
target_link_libraries(corvalis_qt_options INTERFACE corvalis_options)
target_compile_definitions(corvalis_qt_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_CONTEXTLESS_CONNECT QT_NO_FOREACH QT_NO_KEYWORDS
  QT_STRICT_ITERATORS)
