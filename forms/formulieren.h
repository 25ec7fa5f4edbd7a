// The forms of the program and the shared values, each form created on first use and kept for the whole run.
// It opens nothing by itself; the forms open one another through it.
#pragma once

#include "globals/globalen.h"
#include "runtime/form.h"

#include <map>
#include <memory>
#include <typeindex>

namespace cijferwerf {

class formulieren {
public:
    explicit formulieren(outside& with) : buiten(with) {}

    // The program's one form of this class; of a class with several screens, the one with these numbers.
    template<class Form, class... Numbers>
    Form& get(Numbers... numbers) {
        auto& kept = forms_[{typeid(Form), {numbers...}}];
        if (!kept) kept = std::make_unique<Form>(buiten, *this, numbers...);
        return static_cast<Form&>(*kept);
    }

    // Asks, over this form, whether the pupil really wants to stop; Yes ends the program.
    void vraag_of_stoppen(form& on) {
        buiten.ask(on, {"Wil je echt stoppen?", program_name, box_buttons::yes_no}, [this](box_answer sure) {
            if (sure == box_answer::yes) buiten.end();
        });
    }

    outside& buiten;
    GLOBALEN globalen;

private:
    std::map<std::pair<std::type_index, std::vector<int>>, std::unique_ptr<form>> forms_;
};

} // namespace cijferwerf
