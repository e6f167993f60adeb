# Warnings that every target of the project is compiled with; link merix_warnings privately.
option(MERIX_WERROR "Treat warnings as errors" OFF)

add_library(merix_warnings INTERFACE)
target_compile_options(merix_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-align -Woverloaded-virtual
  -Wformat=2 -Wextra-semi -Wimplicit-fallthrough -Wsuggest-override -Wzero-as-null-pointer-constant $<$<BOOL:${MERIX_WERROR}>:-Werror>)
target_compile_definitions(merix_warnings INTERFACE
  QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_TO_ASCII QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)
