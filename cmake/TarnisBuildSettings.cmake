# What every target of this repository is compiled with: link TarnisBuildSettings privately.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(TarnisBuildSettings INTERFACE)
target_include_directories(TarnisBuildSettings INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_definitions(TarnisBuildSettings INTERFACE
    QT_MESSAGELOGCONTEXT # file, line and function of log records in release builds too
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
target_compile_options(TarnisBuildSettings INTERFACE
    -fno-plt -Wall -Wextra -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${PROJECT_IS_TOP_LEVEL}>:-Werror>
    # Log records name files relative to this repository.
    -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)
