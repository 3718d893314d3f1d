#include "desktop/grid/pictures.h"

#include <QBuffer>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/toolkit/controls.h"
#include "desktop/toolkit/dialogs.h"
#include "desktop/toolkit/side_window.h"
#include "desktop/toolkit/text.h"

namespace quillmark::desktop {

namespace {

constexpr double kStep = 1.25;
constexpr double kSmallest = 0.1;
constexpr double kLargest = 8;

}  // namespace

std::string BitmapOf(const QImage& picture) {
    if (picture.isNull()) return {};
    QImage opaque(picture.size(), QImage::Format_RGB888);
    opaque.fill(Qt::white);
    opaque.setDotsPerMeterX(picture.dotsPerMeterX());
    opaque.setDotsPerMeterY(picture.dotsPerMeterY());
    QPainter(&opaque).drawImage(QRect({}, picture.size()), picture);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    opaque.save(&buffer, "BMP");
    return bytes.toStdString();
}

QImage PictureOf(std::string_view bitmap) {
    return QImage::fromData(QByteArrayView(bitmap.data(), static_cast<qsizetype>(bitmap.size())), "BMP");
}

Clipboard ReadClipboard() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (!data) return {};
    if (!data->text().isEmpty()) return {Utf8(data->text()), {}};
    return {{}, BitmapOf(data->hasImage() ? qvariant_cast<QImage>(data->imageData()) : QImage())};
}

PictureWindow::PictureWindow(QWidget* parent, std::string_view title, const QImage& picture)
    : SideWindow(parent, title), picture_(picture) {
    shown_ = new QLabel(this);
    shown_->setScaledContents(true);
    Describe(shown_, Shown(title),
             QStringLiteral("Picture of %1 by %2 points").arg(picture.width()).arg(picture.height()));
    area_ = new QScrollArea(this);
    area_->setWidget(shown_);
    area_->setAlignment(Qt::AlignCenter);
    Describe(area_, Shown(title), QStringLiteral("Plus and minus change the size of the picture"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(area_, 1);
    layout->addWidget(buttons);
    const QSize room = screen()->availableSize() * 8 / 10;
    const QSize fitted = picture.size().boundedTo(picture.size().scaled(room * 0.9, Qt::KeepAspectRatio));
    scale_ = picture.width() > 0 ? static_cast<double>(fitted.width()) / picture.width() : 1;
    shown_->setPixmap(QPixmap::fromImage(picture_));
    Scale(1);
    resize((fitted + QSize(60, 100)).expandedTo(minimumSizeHint()).boundedTo(room));
    area_->setFocus();
}

void PictureWindow::Scale(double factor) {
    scale_ = std::clamp(scale_ * factor, kSmallest, kLargest);
    shown_->resize(picture_.size() * scale_);
}

void PictureWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal) return Scale(kStep);
    if (event->key() == Qt::Key_Minus) return Scale(1 / kStep);
    SideWindow::keyPressEvent(event);
}

void ShowPicture(std::string_view bitmap, std::string_view title, QWidget* parent) {
    const QImage picture = PictureOf(bitmap);
    if (picture.isNull())
        return QtDialogs(parent).Tell("  ALERT", "The picture of this field cannot be read.",
                                      DialogIcon::Warning);
    PictureWindow(parent, title, picture).exec();
}

}  // namespace quillmark::desktop
