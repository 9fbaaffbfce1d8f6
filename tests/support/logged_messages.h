#pragma once

#include <QLoggingCategory>
#include <QMutex>
#include <QStringList>

namespace torvik {

/// Lets a category be heard and keeps its messages, "torvik.disc: ...", for as long as it lives. One at a
/// time.
class LoggedMessages {
public:
    explicit LoggedMessages(const QString& category) : category_(category.toLatin1())
    {
        listener_ = this;
        before_ = qInstallMessageHandler(Take);
        QLoggingCategory::setFilterRules(category + QLatin1StringView("=true"));
    }
    ~LoggedMessages()
    {
        QLoggingCategory::setFilterRules({});
        qInstallMessageHandler(before_);
        listener_ = nullptr;
    }
    LoggedMessages(const LoggedMessages&) = delete;
    LoggedMessages& operator=(const LoggedMessages&) = delete;

    QStringList Texts() const
    {
        const QMutexLocker lock(&mutex_);
        return texts_;
    }

private:
    static void Take(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (context.category != listener_->category_)
            return listener_->before_(type, context, text);
        const QMutexLocker lock(&mutex_);
        listener_->texts_.append(QLatin1StringView(context.category) + QLatin1StringView(": ") + text);
    }

    static inline LoggedMessages* listener_ = nullptr;
    static inline QMutex mutex_;

    QByteArray category_;
    QtMessageHandler before_;
    QStringList texts_;
};

} // namespace torvik
