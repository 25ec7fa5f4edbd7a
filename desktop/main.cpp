// The desktop program.
#include "desktop/desktop.h"
#include "forms/practice/mama.h"

#include <QApplication>

using namespace cijferwerf;

int main(int argc, char** argv) {
    prepare_application();
    QApplication application(argc, argv);
    dress_application();

    desktop outside;
    formulieren forms(outside);
    outside.run([&forms] {
        forms.globalen.gekozen_pakket = booklet_set;
        forms.globalen.gekozen_onderdeel = "boekje01";
        auto& m = forms.get<mama>();
        m.kies("BOEKJE 1 - PROCENTEN", std::string(booklet_set), true);
        m.open();
    });
    return QApplication::exec();
}
