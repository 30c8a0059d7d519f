#pragma once

#include <QImage>
#include <QString>
#include <QThreadPool>

#include <functional>
#include <memory>

namespace pictures {

/// Reads the picture of one place of the interface beside it, so that no file holds the program up: a metafile made to
/// be slow takes ten seconds, a picture of many megapixels some. Used on the thread of the interface.
class LecteurPhoto {
public:
    /// Takes the picture; a null one for a file that holds none that can be shown.
    using Suite = std::function<void(const QImage &)>;

    LecteurPhoto();
    LecteurPhoto(const LecteurPhoto &) = delete;
    LecteurPhoto &operator=(const LecteurPhoto &) = delete;
    ~LecteurPhoto();

    /// Reads a file and hands its picture over: before it returns, where that takes at most 0.3 s; else when the
    /// picture is there. A new request replaces a pending one, whose picture then never comes.
    /// @return whether it came at once
    bool Lire(const QString &chemin, Suite suite);

    /// Waits for the picture that is still to come, if there is one, and hands it over.
    void Attendre();

    /// Drops the picture that is still to come.
    void Oublier();

private:
    struct Lecture;

    std::shared_ptr<Lecture> m_lecture;
    QThreadPool m_fils;
};

} // namespace pictures
