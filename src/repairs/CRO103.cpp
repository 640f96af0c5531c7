#include "repairs/CRO103.h"

#include "data/DataUVEL.h"
#include "data/Errors.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "platform/camera/Bitmap.h"
#include "repairs/SysCRO.h"
#include "screens/SysFuncGlobal.h"
#include "ui/Events.h"
#include "ui/FormBuilder.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

using velcro::camera::Camera;
using velcro::ui::PictureBox;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto sqlErrorOnImages = "SQL Error on Table: CRORepItmImages :-"_L1;
constexpr int listWidth = 180; // of a list of numbers

ListFacts imageFacts() {
    return {
        .unit = u"CRO103"_s,
        .caption = u"Customer Repair Orders: Item Camera Capture"_s,
        .failure = {u"103-001"_s, sqlErrorOnImages, ListFailure::Then::GoesOn},
        .columns = {{"ImageID", "Image Index"}},
    };
}

} // namespace

TfrmCRO103::TfrmCRO103(const ItemKey& item, const QString& xSerialNo, const QString& xDescription1,
                       QWidget* parent)
    : ListScreen(imageFacts(), gData->Velmara, parent)
    , item_(item)
    , qryLoadImage(gData->Velmara) {
    makeBand(xSerialNo, xDescription1);
    makePictures();
    setButtons({
        .options = {{.name = u"btnCapture"_s,
                     .caption = u"Capture Image"_s,
                     .key = Qt::Key_Space,
                     .handler = [this] { btnCaptureClick(); },
                     .role = ButtonFacts::Role::Main},
                    {.name = u"btnSave"_s,
                     .caption = u"Save Picture"_s,
                     .key = Qt::Key_F10,
                     .handler = [this] { btnSaveClick(); }},
                    {.name = u"btnDelete"_s,
                     .caption = u"Delete Image"_s,
                     .key = Qt::Key_Delete,
                     .handler = [this] { btnDeleteClick(); },
                     .needsRecord = true,
                     .role = ButtonFacts::Role::Danger},
                    {.name = u"btnSwitch"_s,
                     .caption = u"Next Camera"_s,
                     .key = Qt::Key_F6,
                     .handler = [this] { startCamera(position_ + 1); }}},
    });
    btnSwitch = findChild<velcro::ui::KeyButton*>(u"btnSwitch"_s);
    connectCamera();
}

void TfrmCRO103::makeBand(const QString& xSerialNo, const QString& xDescription1) {
    velcro::ui::FormBuilder form(&above());
    form.edit(u"edCRONo"_s, u"Order #No"_s, {.width = 12, .readOnly = true})->setText(item_.xCRONo);
    form.beside()
        .edit(u"edSerialNo"_s, u"Serial Number"_s, {.width = 40, .readOnly = true})
        ->setText(xSerialNo);
    form.edit(u"edItemNo"_s, u"Item #No"_s, {.width = 12, .readOnly = true})
        ->setText(item_.xItemNo);
    form.beside()
        .edit(u"edDescription1"_s, u"Description"_s, {.width = 40, .readOnly = true})
        ->setText(xDescription1);
}

void TfrmCRO103::makePictures() {
    grid().setFixedWidth(listWidth);
    auto* rows = new QVBoxLayout(&beside());
    const auto add = [&](const QString& name, const QString& heading) {
        auto* label = new QLabel(heading, &beside());
        label->setProperty("role", "heading");
        auto* box = new PictureBox(name, &beside());
        box->setAccessibleName(heading);
        rows->addWidget(label);
        rows->addWidget(box, 1);
        return box;
    };
    live_ = add(u"boxLive"_s, u"Camera"_s);
    cxImage1 = add(u"cxImage1"_s, u"Picture"_s);
}

void TfrmCRO103::connectCamera() {
    using velcro::ui::connectHandler;
    if (velcro::camera::makeCamera) {
        dxCameraControl1 = velcro::camera::makeCamera();
    }
    if (dxCameraControl1 == nullptr) {
        return;
    }
    auto* camera = dxCameraControl1.get();
    connectHandler(camera, &Camera::pictureChanged, this,
                   [this] { live_->setImage(dxCameraControl1->capture(), Qt::KeepAspectRatio); });
    connectHandler(camera, &Camera::failed, this, [this](const QString& reason) {
        live_->setImage({});
        displayError(reason);
    });
    connectHandler(camera, &Camera::namesChanged, this, [this] { camerasChanged(); });
}

// One that is attached while none is live comes on by itself.
void TfrmCRO103::camerasChanged() {
    btnSwitch->setVisible(dxCameraControl1->names().size() > 1);
    if (!dxCameraControl1->isActive() && !dxCameraControl1->names().isEmpty()) {
        startCamera(0);
    }
}

void TfrmCRO103::startCamera(int position) {
    const auto count = dxCameraControl1->names().size();
    position_ = count > 0 ? position % static_cast<int>(count) : 0;
    resetStatusBar();
    dxCameraControl1->start(position_);
}

QStringList TfrmCRO103::statementLines(const QString& /*xSQL*/) const {
    return QStringList(u"SELECT * FROM CRORepItmImages"_s) + item_.where();
}

void TfrmCRO103::FormShow() {
    ListScreen::FormShow();
    btnSwitch->setVisible(dxCameraControl1 && dxCameraControl1->names().size() > 1);
    if (dxCameraControl1) {
        startCamera(0);
    } else {
        displayError(u"No camera is attached"_s);
    }
}

void TfrmCRO103::btnCaptureClick() {
    const QImage picture = dxCameraControl1 ? dxCameraControl1->capture() : QImage();
    if (picture.isNull()) {
        displayError(u"The camera gives no picture"_s);
        return;
    }
    showStill(picture);
    resetStatusBar();
    velcro::ui::pumpEvents();
}

void TfrmCRO103::showStill(const QImage& picture) {
    still_ = picture;
    cxImage1->setImage(picture, Qt::KeepAspectRatio);
}

// A picture cannot travel as a quoted literal, so this statement alone has parameters, and goes out
// by itself. Nothing captured yet: a picture without bytes is kept.
void TfrmCRO103::btnSaveClick() {
    Statement qrySaveImage(gData->Velmara);
    qrySaveImage.setText({
        "INSERT INTO CRORepItmImages"
        " (CO, Branch, CRONo, ItemNo, ProcessID, ImageID, ImageData)"
        " VALUES"
        " (:CO, :Branch, :CRONo, :ItemNo, :ProcessID, :ImageID, :ImageData)",
    });
    qrySaveImage.ParamByName(u"CO"_s).setString(gCO);
    qrySaveImage.ParamByName(u"Branch"_s).setString(gBranch);
    qrySaveImage.ParamByName(u"CRONo"_s).setString(item_.xCRONo);
    qrySaveImage.ParamByName(u"ItemNo"_s).setString(item_.xItemNo);
    qrySaveImage.ParamByName(u"ProcessID"_s).setInteger(0);
    qrySaveImage.ParamByName(u"ImageID"_s)
        .setInteger(cro_GenerateImageID(item_.xCRONo, item_.xItemNo));
    qrySaveImage.ParamByName(u"ImageData"_s).setBytes(velcro::camera::bitmapBytes(still_));
    qrySaveImage.ExecSQL();
    BuildGrid();
}

void TfrmCRO103::btnDeleteClick() {
    const QString imageID = currentText("ImageID");
    if (!sfg_QuestionDlg(u"Delete Image"_s, u"Delete Image #ID: "_s + imageID)) {
        return;
    }
    sfg_AddSQL(item_.deletion("CRORepItmImages") +
                   QStringList("   AND [ImageID] = " + QuotedStr(imageID)),
               u"NEW"_s);
    sfg_AddSQL(QStringList{u"WITH CTE AS ("_s,
                           u"SELECT [RecID], ROW_NUMBER() OVER (ORDER BY CAST(ImageID AS INT))"
                           " AS [NewImageID]"_s,
                           u"  FROM CRORepItmImages"_s} +
                   item_.where() +
                   QStringList{u")"_s, u" UPDATE CRORepItmImages"_s,
                               u"    SET [ImageID] = CTE.NewImageID"_s,
                               u"   FROM CRORepItmImages"_s,
                               u"  INNER JOIN CTE ON CRORepItmImages.RecID = CTE.RecID"_s},
               {});
    gData->vel_ExecSQL(1);
    BuildGrid();
}

void TfrmCRO103::showCurrent() {
    if (hasCurrentRecord()) {
        LoadImage(currentText("ImageID"));
    }
}

// A picture without bytes, or with damaged ones, leaves the still as it was.
bool TfrmCRO103::LoadImage(const QString& xImageID) {
    resetStatusBar();
    readRows(qryLoadImage,
             QStringList(u"SELECT * FROM CRORepItmImages WITH (NOLOCK)"_s) + item_.where() +
                 QStringList("   AND [ImageID] = " + QuotedStr(xImageID)),
             dialogAndFalse(u"103-002"_s, sqlErrorOnImages + u'\r', unitName(), u"LoadImage"_s),
             [&](const Statement& image) {
                 const auto bytes =
                     image.IsEmpty() ? QByteArray() : image.FieldByName(u"ImageData"_s).AsBytes();
                 if (bytes.isEmpty()) {
                     return;
                 }
                 try {
                     showStill(velcro::camera::readBitmap(bytes));
                 } catch (const velcro::camera::BitmapError& error) {
                     displayError(u"Picture %1 cannot be shown: "_s.arg(xImageID) +
                                  errorText(error));
                 }
             });
    return true;
}

void TfrmCRO103::done(int result) {
    if (dxCameraControl1 && dxCameraControl1->isActive()) {
        dxCameraControl1->stop();
        live_->setImage({});
        velcro::ui::pumpEvents();
    }
    ListScreen::done(result);
}
