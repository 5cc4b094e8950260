// Runs `answer` on the modal dialog as soon as one is open.
#pragma once

#include <QApplication>
#include <QTimer>
#include <functional>

namespace orvelle::qt {

template <typename Dialog>
class Answerer {
public:
    explicit Answerer(std::function<void(Dialog&)> answer) {
        timer.callOnTimeout([this, answer = std::move(answer)] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            timer.stop();
            answer(*dialog);
        });
        timer.start(1);
    }

private:
    QTimer timer;
};

}  // namespace orvelle::qt
