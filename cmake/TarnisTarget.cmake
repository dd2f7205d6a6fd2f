# What all targets of this repository share. Call it right after add_library() or add_executable().
function(tarnis_target name)
    target_compile_features(${name} PUBLIC cxx_std_17)
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_compile_definitions(${name} PRIVATE
        QT_MESSAGELOGCONTEXT # keep file, line and function of log records in release builds
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_KEYWORDS
        QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
    target_compile_options(${name} PRIVATE
        -fno-plt -Wall -Wextra -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
        ${qt_warnings} $<$<BOOL:${PROJECT_IS_TOP_LEVEL}>:-Werror>
        # File names in log records are relative to this repository.
        -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)
endfunction()
