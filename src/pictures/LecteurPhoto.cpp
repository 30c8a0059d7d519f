#include "LecteurPhoto.h"

#include "platform/images/LoadPicture.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QSemaphore>

#include <new>
#include <utility>

namespace pictures {

namespace {

constexpr int kPatience = 300; // ms
// Files that are slow to read must not keep the next one waiting.
constexpr int kFils = 8;

QImage PhotoLisible(const QString &chemin) {
    try {
        return platform::images::LoadPicture(chemin);
    } catch (const platform::images::PictureError &) {
        return {};
    } catch (const std::bad_alloc &) { // a picture larger than the memory
        return {};
    }
}

} // namespace

/// A reading; its thread and the reader share it. `image` belongs to the thread until `lue` is released.
struct LecteurPhoto::Lecture {
    QImage image;
    QSemaphore lue;
    Suite suite; ///< empty once it was called, or when nobody waits for it

    /// Whether the picture has come, waiting for it that many ms, or without end for -1; it is handed over then.
    bool Livrer(int patience) {
        if (!lue.tryAcquire(1, patience)) {
            return false;
        }
        lue.release();
        if (const Suite appelee = std::exchange(suite, nullptr)) {
            appelee(image);
        }
        return true;
    }
};

LecteurPhoto::LecteurPhoto() {
    m_fils.setMaxThreadCount(kFils);
}

LecteurPhoto::~LecteurPhoto() {
    Oublier();
}

bool LecteurPhoto::Lire(const QString &chemin, Suite suite) {
    Oublier();
    const auto lecture = std::make_shared<Lecture>();
    lecture->suite = std::move(suite);
    m_lecture = lecture;
    m_fils.start([lecture, chemin] {
        lecture->image = PhotoLisible(chemin);
        lecture->lue.release();
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [lecture] { lecture->Livrer(0); }, Qt::QueuedConnection);
    });
    return lecture->Livrer(kPatience);
}

void LecteurPhoto::Attendre() {
    if (m_lecture) {
        m_lecture->Livrer(-1);
    }
}

void LecteurPhoto::Oublier() {
    if (m_lecture) {
        m_lecture->suite = nullptr;
        m_lecture.reset();
    }
}

} // namespace pictures
