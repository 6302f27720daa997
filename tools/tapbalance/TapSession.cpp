#include "tools/tapbalance/TapSession.h"

#include <memory>

namespace {

/// What a measurement brings from its thread.
struct Measured
{
    CameraRecord camera;
    TapLayout layout;
    TapMeasurement measurement;
    TapBalance balance;
};

Sentence readLayout(const MeasureContext &context, const TapOptions &options, TapLayout &layout)
{
    auto found = findTapLayout(context.device, options);
    if (auto *const problem = std::get_if<Sentence>(&found))
        return std::move(*problem);
    layout = std::get<TapLayout>(found);
    return {};
}

} // namespace

TapSession::TapSession(MeasureJob &job, QObject *parent) : QObject(parent), m_job(job) { }

void TapSession::setOptions(const TapOptions &options)
{
    const bool isOtherLayout = !(options.layout == m_options.layout);
    m_options = options;
    if (!isOtherLayout)
        return;
    m_result = {};
    emit changed();
}

void TapSession::clear()
{
    m_result = {};
    m_balances.clear();
    emit changed();
}

void TapSession::measure()
{
    TapOptions options = m_options;
    options.darkLevel = m_result.darkLevel();
    const auto measured = std::make_shared<Measured>();
    const auto work = [options, measured](const MeasureContext &context, const CameraRecord &camera) {
        measured->camera = camera;
        if (Sentence problem = readLayout(context, options, measured->layout); !problem.isEmpty())
            return problem;
        return measureTaps(context, options, TapSetting::Gain, measured->measurement);
    };
    const auto done = [this, measured](const QString &problem) {
        if (problem.isEmpty()) {
            takeLayout(measured->layout);
            m_result.bright = measured->measurement;
        }
        finish(problem, measured->camera);
    };
    m_job.start(tr("Measuring the taps"), MeasureJob::Changes::PutBack, work, this, done);
}

void TapSession::balance(TapSetting setting)
{
    TapOptions options = m_options;
    options.darkLevel = m_result.darkLevel();
    const auto measured = std::make_shared<Measured>();
    const auto work
        = [options, measured, setting](const MeasureContext &context, const CameraRecord &camera) {
              measured->camera = camera;
              if (Sentence problem = readLayout(context, options, measured->layout); !problem.isEmpty())
                  return problem;
              return balanceTaps(context, options, setting, measured->balance);
          };
    const auto done = [this, measured](const QString &problem) {
        if (problem.isEmpty()) {
            takeLayout(measured->layout);
            m_result.add(measured->balance);
            m_balances.push_back({measured->layout, measured->balance});
        }
        finish(problem, measured->camera);
    };
    m_job.start(setting == TapSetting::Gain ? tr("Balancing the gains") : tr("Balancing the black levels"),
        MeasureJob::Changes::Keep, work, this, done);
}

void TapSession::undo()
{
    if (m_balances.empty())
        return;
    const Done last = m_balances.back();
    const auto measured = std::make_shared<Measured>();
    const auto work = [last, measured](const MeasureContext &context, const CameraRecord &camera) {
        measured->camera = camera;
        return undoBalance(context.device, last.balance);
    };
    const auto done = [this, last, measured](const QString &problem) {
        if (problem.isEmpty()) {
            m_balances.pop_back();
            restoreResult(last);
        }
        finish(problem, measured->camera);
    };
    m_job.start(tr("Putting the earlier values back"), MeasureJob::Changes::Keep, work, this, done);
}

/// Forgets the result of another layout, because its taps cannot be compared with those of this one.
void TapSession::takeLayout(const TapLayout &layout)
{
    if (!(m_result.layout == layout))
        m_result = {};
    m_result.layout = layout;
}

/// Shows the measurement from before the balancing, unless the result is that of another layout.
void TapSession::restoreResult(const Done &undone)
{
    if (!hasResult() || !(m_result.layout == undone.layout))
        return;
    const bool isGain = undone.balance.control.setting == TapSetting::Gain;
    (isGain ? m_result.bright : m_result.dark) = undone.balance.before;
    (isGain ? m_result.gain : m_result.blackLevel).reset();
}

void TapSession::finish(const QString &problem, const CameraRecord &camera)
{
    if (!problem.isEmpty()) {
        emit failed(problem);
        return;
    }
    m_camera = camera;
    emit changed();
}
