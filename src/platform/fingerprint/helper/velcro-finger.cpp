// velcro-finger: watches the seat's fingerprint reader for the program, in a process of its own,
// since comparing with thousands of templates takes long and must leave the screens alone.
//
// Reads from its input
//   wait <n>             and n lines with a template each: waits for a finger to compare with them
//   again                waits for a finger to compare with the same ones
// and answers with lines
//   opened <driver>      the reader is there
//   failed <why>         there is none
//   unreadable <rows>    rows of the templates, from 0, that no finger can be compared with
//   touched
//   image <width> <height> <base64 of its bytes>
//   quality <code> <0..100>
//   captured <row>       of the template that the finger matches, -1 for none
//   lost <why>           the reader is gone
// Ends with its input.
#include "platform/fingerprint/helper/Prints.h"

#include <QHash>

#include <cstdio>
#include <vector>

using velcro::fingerprint::Failure;
using velcro::fingerprint::Owned;

namespace {

void say(const QByteArray& line) {
    std::fputs(line.constData(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

class Watch
{
public:
    Watch()
        : loop_(g_main_loop_new(nullptr, FALSE))
        , context_(fp_context_new()) {}

    int run() {
        QByteArray failure;
        reader_ = velcro::fingerprint::firstReader(*context_, failure);
        if (reader_ == nullptr) {
            say("failed " + failure);
            return 1;
        }
        fp_device_open(reader_, nullptr, opened, this);
        input_ = g_io_channel_unix_new(fileno(stdin));
        g_io_channel_set_encoding(input_, nullptr, nullptr);
        g_main_loop_run(loop_.get());
        g_io_channel_unref(input_);
        if (fp_device_is_open(reader_)) {
            fp_device_close_sync(reader_, nullptr, nullptr);
        }
        return 0;
    }

private:
    static Watch& self(gpointer data) { return *static_cast<Watch*>(data); }

    static void opened(GObject*, GAsyncResult* result, gpointer data) {
        auto& watch = self(data);
        Failure failure;
        if (!fp_device_open_finish(watch.reader_, result, failure.out())) {
            say(QByteArray("failed ") + failure.text());
            g_main_loop_quit(watch.loop_.get());
            return;
        }
        g_signal_connect(watch.reader_, "notify::finger-status", G_CALLBACK(fingerMoved), data);
        g_io_add_watch(watch.input_, GIOCondition(G_IO_IN | G_IO_HUP), commanded, data);
        say(QByteArray("opened ") + fp_device_get_driver(watch.reader_));
    }

    static void fingerMoved(FpDevice* reader, GParamSpec*, gpointer data) {
        const bool lies = (fp_device_get_finger_status(reader) & FP_FINGER_STATUS_PRESENT) != 0;
        if (lies && !self(data).touched_) {
            say("touched");
        }
        self(data).touched_ = lies;
    }

    QByteArray readLine() {
        gchar* line = nullptr;
        gsize length = 0, end = 0;
        if (g_io_channel_read_line(input_, &line, &length, &end, nullptr) != G_IO_STATUS_NORMAL) {
            return {};
        }
        QByteArray text(line, qsizetype(end));
        g_free(line);
        return text;
    }

    static gboolean commanded(GIOChannel* channel, GIOCondition, gpointer data) {
        auto& watch = self(data);
        do {
            const QByteArray line = watch.readLine();
            if (line.startsWith("wait ")) {
                watch.takeTemplates(line.mid(5).toInt());
            } else if (line != "again") { // the input has ended
                watch.leave();
                return G_SOURCE_REMOVE;
            }
            watch.waitForFinger();
        } while (g_io_channel_get_buffer_condition(channel) & G_IO_IN);
        return G_SOURCE_CONTINUE;
    }

    void takeTemplates(int count) {
        gallery_.reset(g_ptr_array_new_with_free_func(g_object_unref));
        rows_.clear();
        QByteArray unreadable;
        QHash<QByteArray, std::shared_ptr<FpPrint>> before;
        known_.swap(before);
        for (int row = 0; row < count; ++row) {
            const QByteArray text = readLine();
            auto& print = known_[text];
            print = before.value(text);
            if (!print) {
                print = velcro::fingerprint::printOf(text, *reader_);
            }
            if (!print) {
                unreadable += ' ' + QByteArray::number(row);
                continue;
            }
            g_ptr_array_add(gallery_.get(), g_object_ref(print.get()));
            rows_.push_back(row);
        }
        say("unreadable" + unreadable);
    }

    void leave() {
        leaving_ = true;
        if (waiting_) {
            g_cancellable_cancel(waiting_.get());
        } else {
            g_main_loop_quit(loop_.get());
        }
    }

    void waitForFinger() {
        if (waiting_) {
            again_ = true;
            g_cancellable_cancel(waiting_.get());
            return;
        }
        again_ = false;
        waiting_.reset(g_cancellable_new());
        fp_device_identify(reader_, gallery_.get(), waiting_.get(), matched, this, nullptr, ended,
                           this);
    }

    static void matched(FpDevice*, FpPrint* match, FpPrint* print, gpointer data, GError* error) {
        if (error != nullptr) {
            say("quality " + QByteArray::number(error->code + 1) + " 0");
            return;
        }
        auto& watch = self(data);
        if (print != nullptr) {
            watch.show(*print);
        }
        const auto row = [&] {
            for (guint i = 0; match != nullptr && i < watch.gallery_->len; ++i) {
                if (g_ptr_array_index(watch.gallery_.get(), i) == match) {
                    return watch.rows_[i];
                }
            }
            return -1;
        }();
        say("captured " + QByteArray::number(row));
    }

    static void show(FpPrint& print) {
        if (auto* image = fp_print_get_image(&print)) {
            gsize size = 0;
            const auto* bytes = fp_image_get_data(image, &size);
            say("image " + QByteArray::number(fp_image_get_width(image)) + ' ' +
                QByteArray::number(fp_image_get_height(image)) + ' ' +
                QByteArray(reinterpret_cast<const char*>(bytes), qsizetype(size)).toBase64());
        }
        say("quality 0 " + QByteArray::number(velcro::fingerprint::qualityOf(print)));
    }

    static void ended(GObject*, GAsyncResult* result, gpointer data) {
        auto& watch = self(data);
        Failure failure;
        fp_device_identify_finish(watch.reader_, result, nullptr, nullptr, failure.out());
        watch.waiting_.reset();
        const GError* error = failure.get();
        if (watch.leaving_) {
            g_main_loop_quit(watch.loop_.get());
        } else if (error != nullptr && error->domain != fp_device_retry_quark() &&
                   !g_error_matches(error, G_IO_ERROR, G_IO_ERROR_CANCELLED)) {
            say(QByteArray("lost ") + error->message);
        } else if (watch.again_ || error != nullptr) {
            watch.waitForFinger();
        }
    }

    Owned<GMainLoop> loop_;
    Owned<FpContext> context_;
    FpDevice* reader_ = nullptr; // the context's
    GIOChannel* input_ = nullptr;
    Owned<GPtrArray> gallery_;
    std::vector<int> rows_; // of the gallery's prints
    QHash<QByteArray, std::shared_ptr<FpPrint>> known_;
    Owned<GCancellable> waiting_;
    bool again_ = false;
    bool leaving_ = false;
    bool touched_ = false;
};

} // namespace

int main() {
    return Watch().run();
}
