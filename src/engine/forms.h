#pragma once

#include <QString>
#include <QStringView>

namespace zelvor {

// The form that LOADFORM shows by that name, in any case and with blanks around it, as it is written; empty for none.
QString formNamed(QStringView name);

}  // namespace zelvor
