#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>

#include <vector>

class QTextDocument;

namespace torvik::rtf {

/// The pictures of one document, numbered from 1.
class PictureStore {
public:
    /// Keeps a picture that is shown at `size` pixels and returns its number.
    int Add(const QImage& image, const QSizeF& size);
    /// The name under which the document knows the picture with a number.
    static QString NameOf(int number);
    QSizeF SizeOf(int number) const;
    int Count() const { return static_cast<int>(pictures_.size()); }
    /// Hands all pictures to the document, and forgets them.
    void GiveTo(QTextDocument& document);

private:
    struct Picture {
        QImage image;
        QSizeF size;
    };
    std::vector<Picture> pictures_;
};

} // namespace torvik::rtf
