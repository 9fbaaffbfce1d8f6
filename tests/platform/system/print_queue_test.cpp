#include "platform/system/print_queue.h"
#include "support/logged_messages.h"
#include "support/test_class.h"

#include <QElapsedTimer>

#include <algorithm>
#include <arpa/inet.h>
#include <cups/cups.h>
#include <netinet/in.h>
#include <string>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// A print system on a port of this machine that knows one printer, "Laser", and speaks the protocol's own
/// bytes.
class PrintSystem {
public:
    enum class Manner { Accepting, Rejecting, HangsUp, Silent };

    explicit PrintSystem(Manner manner) : manner_(manner), socket_(::socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        if (::bind(socket_, reinterpret_cast<sockaddr*>(&address), size) != 0 || ::listen(socket_, 8) != 0 ||
            ::getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &size) != 0)
            qFatal("no port for the print system of the test");
        cupsSetServer(("127.0.0.1:" + std::to_string(ntohs(address.sin_port))).c_str());
        thread_ = std::thread([this] { Serve(); });
    }
    ~PrintSystem()
    {
        ::shutdown(socket_, SHUT_RDWR);
        thread_.join();
        ::close(socket_);
        for (Visit& visit : visits_) {
            ::shutdown(visit.socket, SHUT_RDWR);
            visit.thread.join();
            ::close(visit.socket);
        }
        cupsSetServer(nullptr);
    }
    PrintSystem(const PrintSystem&) = delete;
    PrintSystem& operator=(const PrintSystem&) = delete;

private:
    struct Visit {
        int socket;
        std::thread thread;
    };

    /// Visitors come side by side: the library opens a second connection before it closes the first.
    void Serve()
    {
        for (;;) {
            const int visitor = ::accept(socket_, nullptr, nullptr);
            if (visitor < 0)
                return;
            visits_.push_back({visitor, std::thread([this, visitor] {
                                   while (manner_ != Manner::HangsUp && Answer(visitor)) {
                                   }
                                   ::shutdown(visitor, SHUT_RDWR);
                               })});
        }
    }

    /// Takes one request and answers it; false when the visitor has gone.
    bool Answer(int visitor) const
    {
        std::string request;
        std::size_t headEnd = 0;
        while ((headEnd = request.find("\r\n\r\n")) == std::string::npos) {
            if (!Receive(visitor, request))
                return false;
        }
        if (manner_ == Manner::Silent)
            return Receive(visitor, request);
        Send(visitor, "HTTP/1.1 100 Continue\r\n\r\n");
        std::string head = request.substr(0, headEnd);
        std::transform(head.begin(), head.end(), head.begin(), [](char c) { return c | ' '; });
        const std::size_t length = head.find("content-length: ");
        const std::size_t wanted =
            headEnd + 4 + (length == std::string::npos ? 0 : std::stoul(head.substr(length + 16)));
        while (request.size() < wanted) {
            if (!Receive(visitor, request))
                return false;
        }
        const std::string body = Body(request.find("/printers/Laser") != std::string::npos);
        Send(visitor, "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " +
                          std::to_string(body.size()) + "\r\n\r\n" + body);
        return true;
    }

    static bool Receive(int visitor, std::string& text)
    {
        char bytes[4096];
        const ssize_t count = ::recv(visitor, bytes, sizeof bytes, 0);
        if (count > 0)
            text.append(bytes, static_cast<std::size_t>(count));
        return count > 0;
    }

    static void Send(int visitor, const std::string& text)
    {
        if (::send(visitor, text.data(), text.size(), MSG_NOSIGNAL) < 0)
            qWarning("the visitor of the print system has gone");
    }

    std::string Body(bool isThere) const
    {
        ipp_t* answer = ippNew();
        ippSetStatusCode(answer, isThere ? IPP_STATUS_OK : IPP_STATUS_ERROR_NOT_FOUND);
        ippSetRequestId(answer, 1);
        ippAddString(answer, IPP_TAG_OPERATION, IPP_TAG_CHARSET, "attributes-charset", nullptr, "utf-8");
        ippAddString(answer, IPP_TAG_OPERATION, IPP_TAG_LANGUAGE, "attributes-natural-language", nullptr,
                     "en");
        if (isThere) {
            ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr, "Laser");
            ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_URI, "printer-uri-supported", nullptr,
                         "ipp://localhost/printers/Laser");
            ippAddInteger(answer, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-type", 4);
            ippAddBoolean(answer, IPP_TAG_PRINTER, "printer-is-accepting-jobs",
                          manner_ == Manner::Accepting ? 1 : 0);
        }
        std::string bytes;
        const auto append = [](void* to, ipp_uchar_t* from, std::size_t count) {
            static_cast<std::string*>(to)->append(reinterpret_cast<char*>(from), count);
            return static_cast<ssize_t>(count);
        };
        ippWriteIO(&bytes, append, 1, nullptr, answer);
        ippDelete(answer);
        return bytes;
    }

    Manner manner_;
    int socket_;
    std::vector<Visit> visits_;
    std::thread thread_;
};

} // namespace

/// What the print system says about a printer.
class PrintQueueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_printer_takes_jobs_when_the_print_system_says_so()
    {
        const PrintSystem system(PrintSystem::Manner::Accepting);
        QVERIFY(TakesJobs(u"Laser"_s));
    }

    void a_printer_that_rejects_jobs_takes_none()
    {
        const PrintSystem system(PrintSystem::Manner::Rejecting);
        QVERIFY(!TakesJobs(u"Laser"_s));
    }

    void a_printer_that_the_print_system_does_not_know_is_not_refused()
    {
        const PrintSystem system(PrintSystem::Manner::Rejecting);
        QVERIFY(TakesJobs(u"Inkjet"_s));
    }

    void the_presets_of_a_user_are_those_of_their_printer()
    {
        const PrintSystem system(PrintSystem::Manner::Rejecting);
        QVERIFY(!TakesJobs(u"Laser/draft"_s));
    }

    void what_the_print_system_said_is_logged()
    {
        LoggedMessages log(u"torvik.print"_s);
        {
            const PrintSystem system(PrintSystem::Manner::Accepting);
            TakesJobs(u"Laser"_s);
            TakesJobs(u"Inkjet"_s);
        }
        {
            const PrintSystem system(PrintSystem::Manner::Rejecting);
            TakesJobs(u"Laser"_s);
        }
        cupsSetServer("127.0.0.1:9");
        TakesJobs(u"Laser"_s);
        cupsSetServer(nullptr);
        QCOMPARE(log.Texts(),
                 (QStringList{u"torvik.print: printer Laser: takes jobs"_s,
                              u"torvik.print: printer Inkjet: the print system does not know it"_s,
                              u"torvik.print: printer Laser: takes no jobs"_s,
                              u"torvik.print: no print system answers at 127.0.0.1"_s}));
    }

    void a_print_system_that_hangs_up_refuses_nothing()
    {
        const PrintSystem system(PrintSystem::Manner::HangsUp);
        QVERIFY(TakesJobs(u"Laser"_s));
    }

    void a_print_system_that_says_nothing_is_not_waited_for_long()
    {
        const PrintSystem system(PrintSystem::Manner::Silent);
        QElapsedTimer taken;
        taken.start();
        QVERIFY(TakesJobs(u"Laser"_s));
        QVERIFY2(taken.elapsed() < 10'000, qPrintable(QString::number(taken.elapsed())));
    }

    void without_a_print_system_the_answer_comes_at_once()
    {
        cupsSetServer("127.0.0.1:9");
        QElapsedTimer taken;
        taken.start();
        const bool takes = TakesJobs(u"Laser"_s);
        cupsSetServer(nullptr);
        QVERIFY(takes);
        QVERIFY2(taken.elapsed() < 1000, qPrintable(QString::number(taken.elapsed())));
    }
};

TORVIK_GUILESS_TEST(PrintQueueTest)
#include "print_queue_test.moc"
