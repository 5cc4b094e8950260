# What many files include and nobody here changes, compiled once for each kind of target; a target takes its kind with
# target_precompile_headers(... REUSE_FROM orvelle_plain_headers). A list holds what most files of the kind need and no
# more, since each file pays for its length. None of our own headers stands in one: a change of it would compile all
# again. Files include what they use all the same; tools/lint compiles without these.
function(orvelle_precompiled_headers target)
    file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${target}.cpp CONTENT "// Carries the precompiled headers.\n")
    add_library(${target} OBJECT EXCLUDE_FROM_ALL ${CMAKE_CURRENT_BINARY_DIR}/${target}.cpp)
    target_link_libraries(${target} PRIVATE orvelle_warnings)
    target_precompile_headers(${target} PRIVATE ${ARGN})
endfunction()

set(orvelle_plain_header_list
    <algorithm> <array> <functional> <map> <memory> <optional> <string> <utility> <vector>)
set(orvelle_qt_header_list
    <QAbstractButton> <QApplication> <QCheckBox> <QComboBox> <QHBoxLayout> <QLabel> <QLineEdit> <QPainter>
    <QPushButton> <QTimer> <QVBoxLayout> <QWindow>)
