// Photographs of an item: lists those that are kept, shows the live camera and a still beside them,
// keeps and deletes pictures. They lie in table CRORepItmImages, numbered 1 to n for an item.
#pragma once

#include "platform/camera/Camera.h"
#include "repairs/ItemKey.h"
#include "screens/ListScreen.h"
#include "ui/PictureBox.h"

class TfrmCRO103 : public ListScreen
{
    Q_OBJECT

public:
    TfrmCRO103(const ItemKey& item, const QString& xSerialNo, const QString& xDescription1,
               QWidget* parent = nullptr);

protected:
    QStringList statementLines(const QString& xSQL) const override;
    void rowChosen() override { showCurrent(); }
    void rowClicked() override { showCurrent(); }
    void FormShow() override;
    void done(int result) override;

private:
    void makeBand(const QString& xSerialNo, const QString& xDescription1);
    void makePictures();
    void connectCamera();
    void camerasChanged();
    void startCamera(int position);
    void btnCaptureClick();
    void btnSaveClick();
    void btnDeleteClick();
    void showCurrent();
    bool LoadImage(const QString& xImageID);
    void showStill(const QImage& picture);

    const ItemKey item_;
    std::unique_ptr<velcro::camera::Camera> dxCameraControl1;
    int position_ = 0; // of the camera that is wanted
    velcro::ui::PictureBox* live_ = nullptr;
    velcro::ui::PictureBox* cxImage1 = nullptr;
    velcro::ui::KeyButton* btnSwitch = nullptr;
    QImage still_;
    Statement qryLoadImage;
};
