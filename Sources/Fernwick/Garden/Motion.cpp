#include "Garden/Motion.hpp"

#include <QApplication>
#include <QStyle>

namespace Garden {

bool reducedMotion() {
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

}  // namespace Garden
