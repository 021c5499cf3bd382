#pragma once
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include "plot/PlotScene.h"
#include "plot/Render.h"

// Draws pictures on a thread of its own, so that ten million points do not
// hold up the thread that asks for them. Requests are drawn in turn, and a
// request waiting to be drawn is replaced by a newer one: pictures come out in
// the order they were asked for, the newest last.
class PictureWorker
{
public:
    struct Done
    {
        PlotPicture picture;
        unsigned long request = 0; // as request() numbered it
    };

    // ready is called on the worker's thread each time a picture is done; take() fetches it.
    explicit PictureWorker(std::function<void()> ready);
    // Waits for the picture being drawn, drops those not begun.
    ~PictureWorker();
    PictureWorker(const PictureWorker&) = delete;
    PictureWorker& operator=(const PictureWorker&) = delete;

    // Returns the request's number, larger than any before. The scene's
    // keepAlive is held until its picture is done.
    unsigned long request(PlotScene scene, const PlotViewpoint& view, const QSize& size, double ratio);
    // The newest picture done since the last take, if any.
    std::optional<Done> take();
    // Blocks until every request made so far is drawn.
    void wait();

private:
    struct Request
    {
        PlotScene scene;
        PlotViewpoint view;
        QSize size;
        double ratio = 1.0;
        unsigned long number = 0;
    };
    void run();

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_idle;
    std::optional<Request> m_next;
    std::optional<Done> m_done;
    unsigned long m_requests = 0;
    bool m_drawing = false;
    bool m_stop = false;
    std::function<void()> m_ready;
    std::thread m_thread; // started with the first request
};
