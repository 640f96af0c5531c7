#include "Enrolment.h"

#include "platform/fingerprint/helper/Prints.h"

#include <stdexcept>

namespace velcro::enrol {

using fingerprint::Failure;
using fingerprint::Owned;

namespace {

struct Progress
{
    QTextStream& out;
    int times;

    void ask(int done) const {
        if (done < times) {
            out << "Place the finger on the reader (" << done + 1 << " of " << times << ")"
                << Qt::endl;
        }
    }
    static void told(FpDevice*, int done, FpPrint*, gpointer data, GError* error) {
        const auto& progress = *static_cast<const Progress*>(data);
        if (error != nullptr) {
            progress.out << error->message << Qt::endl;
        }
        progress.ask(done);
    }
};

/// Open for as long as it lives.
class OpenReader
{
public:
    explicit OpenReader(FpDevice& reader)
        : reader_(reader) {
        Failure failure;
        if (!fp_device_open_sync(&reader_, nullptr, failure.out())) {
            throw std::runtime_error(failure.text());
        }
    }
    ~OpenReader() { fp_device_close_sync(&reader_, nullptr, nullptr); }
    OpenReader(const OpenReader&) = delete;
    OpenReader& operator=(const OpenReader&) = delete;

private:
    FpDevice& reader_;
};

} // namespace

QByteArray takeFinger(const QString& user, QTextStream& progress) {
    const Owned<FpContext> context(fp_context_new());
    QByteArray missing;
    FpDevice* reader = fingerprint::firstReader(*context, missing);
    if (reader == nullptr) {
        throw std::runtime_error(missing.toStdString());
    }
    const OpenReader open(*reader);
    Progress told{progress, fp_device_get_nr_enroll_stages(reader)};
    told.ask(0);
    auto* wanted = fp_print_new(reader); // the call takes it over
    fp_print_set_username(wanted, user.toUtf8().constData());
    Failure failure;
    const Owned<FpPrint> print(
        fp_device_enroll_sync(reader, wanted, nullptr, Progress::told, &told, failure.out()));
    if (!print) {
        throw std::runtime_error(failure.text());
    }
    const QByteArray text = fingerprint::textOf(*print);
    if (text.isEmpty()) {
        throw std::runtime_error("The template is too long for the database: try another finger, "
                                 "or only the middle of this one.");
    }
    return text;
}

} // namespace velcro::enrol
