// The desktop program.
#include "desktop/desktop.h"
#include "forms/shell/achtergrond.h"

#include <QApplication>

using namespace cijferwerf;

int main(int argc, char** argv) {
    prepare_application();
    QApplication application(argc, argv);
    dress_application();

    desktop outside;
    formulieren forms(outside);
    outside.run([&forms] { forms.get<achtergrond>().open(); });
    follow_desktop_settings([&outside] { outside.run([] {}); });
    const int status = QApplication::exec();
    outside.close();
    return status;
}
