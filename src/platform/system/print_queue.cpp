#include "platform/system/print_queue.h"

#include "runtime/logging.h"

#include <cups/cups.h>
#include <memory>

namespace torvik {

namespace {

constexpr const char* accepting = "printer-is-accepting-jobs";
constexpr int patience = 2000; // milliseconds, for the connection and for each part of the answer

using Connection = std::unique_ptr<http_t, decltype(&httpClose)>;

/// Called when the print system is silent for too long; gives it up.
int GiveUp(http_t* /*connection*/, void* /*data*/)
{
    return 0;
}

Connection ConnectToPrintSystem()
{
    Connection connection(
        httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, patience, nullptr),
        &httpClose);
    if (connection)
        httpSetTimeout(connection.get(), patience / 1000.0, GiveUp, nullptr);
    return connection;
}

using Message = std::unique_ptr<ipp_t, decltype(&ippDelete)>;

/// What the print system tells about a printer; null when it does not answer. Asked by one request: the
/// library's own look-up of a printer opens further connections, and waits a minute for each.
Message AskAbout(const QString& printer, http_t* connection)
{
    const QByteArray name = printer.section(u'/', 0, 0).toUtf8(); // behind a slash stand a user's presets
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", ippPort(),
                     "/printers/%s", name.constData());
    ipp_t* request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, accepting);
    return {cupsDoRequest(connection, request, "/"), &ippDelete};
}

} // namespace

bool TakesJobs(const QString& printer)
{
    const Connection connection = ConnectToPrintSystem();
    if (!connection) {
        qCDebug(logPrint, "no print system answers at %s", cupsServer());
        return true;
    }
    const Message answer = AskAbout(printer, connection.get());
    ipp_attribute_t* found = ippFindAttribute(answer.get(), accepting, IPP_TAG_BOOLEAN);
    const bool takes = found == nullptr || ippGetBoolean(found, 0) != 0;
    qCDebug(logPrint, "printer %s: %s", qUtf8Printable(printer),
            found == nullptr ? "the print system does not know it"
            : takes          ? "takes jobs"
                             : "takes no jobs");
    return takes;
}

} // namespace torvik
