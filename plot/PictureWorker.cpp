#include "plot/PictureWorker.h"

PictureWorker::PictureWorker(std::function<void()> ready) : m_ready(std::move(ready)) {}

PictureWorker::~PictureWorker()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stop = true;
        m_next.reset();
    }
    m_wake.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

unsigned long PictureWorker::request(PlotScene scene, const PlotViewpoint& view, const QSize& size, double ratio)
{
    unsigned long number = 0;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        number = ++m_requests;
        m_next = Request{std::move(scene), view, size, ratio, number};
        if (!m_thread.joinable())
            m_thread = std::thread(&PictureWorker::run, this);
    }
    m_wake.notify_all();
    return number;
}

std::optional<PictureWorker::Done> PictureWorker::take()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::optional<Done> done = std::move(m_done);
    m_done.reset();
    return done;
}

void PictureWorker::wait()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_idle.wait(lock, [this] { return !m_next && !m_drawing; });
}

void PictureWorker::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [this] { return m_stop || m_next; });
        if (m_stop)
            return;
        std::optional<Request> request = std::move(m_next);
        m_next.reset();
        m_drawing = true;
        lock.unlock();
        Done done{renderPicture(request->scene, request->view, request->size, request->ratio), request->number};
        request.reset(); // the columns may go now
        lock.lock();
        m_done = std::move(done);
        m_drawing = false;
        m_idle.notify_all();
        lock.unlock();
        m_ready();
        lock.lock();
    }
}
