// The start of the process, and the guard at its end: whatever no window has caught ends here, in a message
// box.

#include "platform/desktop/SingleInstance.h"
#include "platform/dialogs/MessageBox.h"
#include "shell/Demarrage.h"
#include "shell/Fenetres.h"
#include "shell/FinDuProgramme.h"
#include "store/Programme.h"

#include <QApplication>
#include <cstdlib>
#include <exception>

namespace {

using platform::desktop::SingleInstance;

class Application : public QApplication {
public:
    Application(int &argc, char **argv, SingleInstance &instance)
        : QApplication(argc, argv), m_instance(instance) {}

    /// Runs an action of the program. An exception ends the process there and then, without unwinding the event
    /// loops below, which are not made for it.
    template <class Action>
    auto guarded(Action action) {
        try {
            return action();
        } catch (const shell::FinDuProgramme &fin) {
            end(fin.code);
        } catch (const std::exception &failure) {
            platform::dialogs::Message(nullptr, store::TitreProgramme.toString(),
                                       QString::fromUtf8(failure.what()), platform::dialogs::Icon::Critical);
            end(EXIT_FAILURE);
        }
    }

    bool notify(QObject *receiver, QEvent *event) override {
        return guarded([&] { return QApplication::notify(receiver, event); });
    }

private:
    [[noreturn]] void end(int code) {
        m_instance.Release();
        std::_Exit(code);
    }

    SingleInstance &m_instance;
};

} // namespace

int main(int argc, char *argv[]) {
    SingleInstance instance(store::TitreProgramme.toString());
    Application application(argc, argv, instance);
    shell::PreparerApplication();
    return application.guarded([&instance] {
        shell::Fenetres fenetres;
        shell::ChargerFrmmain(fenetres, instance);
        return QApplication::exec();
    });
}
