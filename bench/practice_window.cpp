// The program as it is when a pupil has come to the practice screen of the first booklet.
#include "desktop/desktop.h"
#include "forms/practice/mama.h"

#include <QApplication>

using namespace cijferwerf;

int main(int argc, char** argv) {
    prepare_application();
    const QApplication application(argc, argv);
    dress_application();

    desktop outside;
    formulieren forms(outside);
    outside.run([&forms] {
        forms.globalen.gekozen_pakket = booklet_set;
        forms.globalen.gekozen_onderdeel = "boekje01";
        mama& screen = forms.get<mama>();
        screen.zet_opschrift("BOEKJE 1 - PROCENTEN", std::string(booklet_set), true);
        screen.open();
    });
    return QApplication::exec();
}
