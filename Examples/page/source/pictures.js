// The pictures of a survey, drawn by Observable Plot from the data that the survey gives.
import { arrow, axisX, axisY, cell, dot, gridX, gridY, line, link, plot, rect, ruleX, ruleY, text } from "@observablehq/plot";
import { drawLater } from "./drawing.js";
import { element } from "./elements.js";

const groupColours = [1, 2, 3, 4, 5, 6].map((k) => `var(--group${k})`);
const shapes = ["circle", "triangle", "square", "diamond", "star", "cross"];
const ink = "var(--ink)";
const muted = "var(--muted)";
const faint = "var(--rule)";
const paper = "var(--paper)";

const style = { background: "none", fontFamily: "inherit", fontSize: "13px", overflow: "visible", color: ink };

/**
 * The figure of a picture, which is drawn a little later: many pictures at once would freeze the page. Null for a picture
 * that isn't known. `surroundings` keeps what pictures take from those ahead of them.
 */
export function figureOf({ name, data }, surroundings) {
  const drawers = { correlation_map: correlationMap, scree, biplot, residuals, residual_quantiles: residualQuantiles };
  const draw = name.startsWith("distribution_") ? distribution : drawers[name];
  if (!draw) return null;
  const figure = element("figure", { "data-picture": name });
  drawLater(() => {
    const records = Object.fromEntries(Object.entries(data).map(([table, all]) => [table, all.slice(1)]));
    fill(figure, drawnOrNull(draw, records, { name, heading: (table) => data[table][0], surroundings }));
  });
  return figure;
}

function fill(figure, drawn) {
  if (drawn === null) {
    figure.append(element("figcaption", {}, "No picture can be drawn of numbers so far from 1."));
    return;
  }
  const { svg, caption, legend } = drawn;
  svg.setAttribute("role", "img");
  svg.setAttribute("aria-label", caption);
  // What a picture consists of would only be read out as loose numbers.
  for (const part of svg.querySelectorAll("[aria-label], [aria-description]")) {
    part.removeAttribute("aria-label");
    part.removeAttribute("aria-description");
  }
  figure.append(...(legend ? [legend] : []), svg, element("figcaption", {}, caption));
}

/** Scales fail on numbers near the ends of the range of doubles, where steps between them come to be 0 or infinite. */
function drawnOrNull(draw, records, surroundings) {
  try {
    return draw(records, surroundings);
  } catch (error) {
    if (error instanceof RangeError) return null;
    throw error;
  }
}

/** Colours as they are, whatever scale the picture has. */
function unscaled(value) {
  return { value, scale: null };
}

function shortened(name, most = 24) {
  const characters = [...name.replace(/[\p{Cc}]/gu, " ")];
  return characters.length <= most ? characters.join("") : `${characters.slice(0, most - 1).join("")}…`;
}

function legendOf(names) {
  const mark = (k) => {
    const svg = document.createElementNS("http://www.w3.org/2000/svg", "svg");
    svg.setAttribute("viewBox", "-7 -7 14 14");
    svg.setAttribute("aria-hidden", "true");
    const path = document.createElementNS("http://www.w3.org/2000/svg", "path");
    path.setAttribute("d", outlines[k]);
    path.style.fill = groupColours[k];
    svg.append(path);
    return svg;
  };
  return element("p", { class: "legend" }, ...names.map((name, k) => element("span", {}, mark(k), element("bdi", {}, shortened(name)))));
}

const outlines = [
  "M5 0A5 5 0 1 1 -5 0A5 5 0 1 1 5 0Z",
  "M0 -5.5L5.5 4.5H-5.5Z",
  "M-4.5 -4.5H4.5V4.5H-4.5Z",
  "M0 -6L5 0L0 6L-5 0Z",
  "M0 -6L1.6 -1.9L6 -1.8L2.5 1L3.7 5.2L0 2.7L-3.7 5.2L-2.5 1L-6 -1.8L-1.6 -1.9Z",
  "M-2 -6H2V-2H6V2H2V6H-2V2H-6V-2H-2Z",
];

// ---- distributions ----

function distribution(records, { name, heading }) {
  const boxes = records[`${name}_boxes`].map(([group, ...five]) => [group, ...five.map(Number)]);
  const highest = Math.max(...records[`${name}_bars`].map((bar) => Number(bar[3])));
  const bars = records[`${name}_bars`]
    .map(([k, from, to, share]) => ({ k: Number(k), from: Number(from), to: Number(to), height: Number(share) / highest }))
    .filter((bar) => bar.height > 0);
  const outside = records[`${name}_outside`].map(([k, value]) => ({ k: Number(k), value: Number(value) }));
  const places = boxes.map((box, i) => ({ k: i + 1, group: box[0], lowest: box[1], lower: box[2], median: box[3], upper: box[4], highest: box[5] }));
  const coloured = boxes.length <= groupColours.length;
  const colour = (row) => groupColours[coloured ? row.k - 1 : 0];
  const title = heading(`${name}_boxes`)[0];
  const inRow = (from, to) => ({ y1: (row) => row.k - from, y2: (row) => row.k - to });
  const longest = Math.max(...places.map((place) => shortened(place.group, 16).length));
  const svg = plot({
    style,
    width: 460,
    height: 64 + 66 * boxes.length,
    marginLeft: 24 + 7.5 * longest,
    marginRight: 16,
    marginBottom: 42,
    x: { label: shortened(title, 40), labelAnchor: "center", labelArrow: "none", nice: false, inset: 6 },
    y: { domain: [boxes.length + 0.5, 0.5], axis: null },
    marks: [
      gridX({ stroke: faint, strokeOpacity: 1 }),
      axisX({ anchor: "bottom", tickSize: 4, ticks: 6, color: ink, tickFormat: plainTick, label: shortened(title, 40), labelArrow: "none", labelAnchor: "center" }),
      text(places, { x: null, y: "k", text: (place) => shortened(place.group, 16), frameAnchor: "left", textAnchor: "end", dx: -12, fill: ink }),
      rect(bars, { x1: "from", x2: "to", y1: (bar) => bar.k + 0.12, y2: (bar) => bar.k + 0.12 - 0.56 * bar.height, fill: unscaled(colour), inset: 0.5 }),
      link(places, { x1: "lowest", x2: "lower", y: (row) => row.k + 0.28, stroke: ink }),
      link(places, { x1: "upper", x2: "highest", y: (row) => row.k + 0.28, stroke: ink }),
      rect(places, { x1: "lower", x2: "upper", ...inRow(-0.2, -0.36), fill: paper, stroke: ink }),
      link(places, { x: "median", ...inRow(-0.2, -0.36), stroke: ink, strokeWidth: 2.5 }),
      dot(outside, { x: "value", y: (row) => row.k + 0.28, r: 1.6, fill: muted }),
    ],
  });
  const medians = boxes.map((box) => `${shortened(box[0])} ${Number(box[3].toPrecision(6))}`).join(", ");
  return { svg, caption: `${shortened(title, 60)}: histograms, and box plots below them. Medians: ${medians}.` };
}

/** A number at an axis, without a thousands separator. */
function plainTick(value) {
  return String(Number(Number(value).toPrecision(6))).replace("-", "−");
}

// ---- correlations ----

function correlationMap(records) {
  const cells = records.correlation_map.map(([column, other, coefficient]) => ({
    column,
    other,
    coefficient: coefficient === "NA" ? NaN : Number(coefficient),
  }));
  const names = cells.slice(0, Math.round(Math.sqrt(cells.length))).map((each) => each.other);
  const side = Math.max(16, Math.min(96, 560 / names.length));
  const longest = 7.5 * Math.max(...names.map((name) => shortened(name).length));
  const level = longest <= side - 4;
  const tick = (name) => shortened(name);
  const svg = plot({
    style,
    marginTop: 6,
    marginRight: 6,
    marginLeft: longest + 18,
    marginBottom: level ? 28 : 24 + 0.72 * longest,
    width: side * names.length + longest + 24,
    height: side * names.length + 6 + (level ? 28 : 24 + 0.72 * longest),
    x: { domain: names, label: null, padding: 0 },
    y: { domain: names, label: null, padding: 0 },
    color: { type: "linear", domain: [-1, -0.5, 0, 0.5, 1], range: ["#b35806", "#f1a340", "#f7f7f7", "#67a9cf", "#2166ac"], interpolate: "rgb" },
    marks: [
      axisX({ tickSize: 0, tickFormat: tick, tickRotate: level ? 0 : -45, textAnchor: level ? "middle" : "end", color: ink }),
      axisY({ tickSize: 0, tickFormat: tick, color: ink }),
      cell(cells, { x: "other", y: "column", fill: "coefficient", inset: 0.75 }),
      ...(side >= 44
        ? [
            text(cells, {
              x: "other",
              y: "column",
              text: (each) => (Number.isNaN(each.coefficient) ? "–" : each.coefficient.toFixed(side >= 56 ? 3 : 2).replace("-", "−")),
              fill: unscaled((each) => (Number.isNaN(each.coefficient) ? muted : Math.abs(each.coefficient) > 0.82 ? "#fefefe" : "#010101")),
            }),
          ]
        : []),
    ],
  });
  return { svg, caption: "Correlation map: from orange for −1 over white to blue for 1." };
}

// ---- components ----

function scree(records, { surroundings }) {
  const variances = records.scree.map(([k, variance, percent]) => ({ k: Number(k), variance: Number(variance), percent: Number(percent) }));
  surroundings.percent = variances.map((each) => each.percent);
  const few = variances.length <= 12;
  const svg = plot({
    style,
    width: 620,
    height: 320,
    marginLeft: 56,
    marginBottom: 44,
    x: { domain: [0.5, variances.length + 0.5] },
    y: { domain: [0, Math.max(1.2, 1.12 * variances[0].variance)] },
    marks: [
      gridY({ stroke: faint, strokeOpacity: 1 }),
      axisX({ label: "component", labelAnchor: "center", labelArrow: "none", ticks: few ? variances.map((each) => each.k) : 12, tickFormat: "d", color: ink }),
      axisY({ label: "variance", labelArrow: "none", color: ink }),
      ruleY([1], { stroke: muted, strokeDasharray: "6 4", strokeWidth: 1.5 }),
      text(["variance of a column"], { frameAnchor: "right", y: () => 1, dy: -9, fill: muted, stroke: paper, strokeWidth: 4 }),
      line(variances, { x: "k", y: "variance", stroke: groupColours[0], strokeWidth: 2 }),
      dot(variances, { x: "k", y: "variance", fill: groupColours[0], stroke: paper, r: 5, strokeWidth: 1.5 }),
      text(few ? variances : [], { x: "k", y: "variance", text: (each) => `${each.percent.toFixed(1)} %`, dx: 8, dy: -10, textAnchor: "start", fill: ink, stroke: paper, strokeWidth: 4 }),
    ],
  });
  const caption = `Scree plot: the variance of each component${few ? ", with its share" : ""}. The dashed line is the variance of a single column.`;
  return { svg, caption };
}

const mostNames = 12; // of columns in a biplot

function biplot(records, { surroundings }) {
  const point = ([name, x, y, group]) => ({ name, x: Number(x), y: Number(y), group });
  const columns = records.biplot_columns.map(point);
  const groups = records.biplot_groups.map(point);
  const rows = records.biplot_rows.map(point);
  const coloured = groups.length > 0 && groups.length <= groupColours.length;
  const number = new Map(groups.map((group, k) => [group.name, k]));
  const place = (each) => (coloured ? number.get(each.group ?? each.name) : 0);
  const length = (each) => Math.hypot(each.x, each.y);
  const stretch = stretchOf(Math.max(...rows.map(length)), Math.max(...columns.map(length)));
  const tips = columns.map((column) => ({ ...column, x: stretch * column.x, y: stretch * column.y }));
  const named = [...tips].sort((a, b) => length(b) - length(a)).slice(0, mostNames);
  const share = (k) => (surroundings.percent ? ` (${surroundings.percent[k].toFixed(1)} %)` : "");
  const frame = frameOf(rows, named, stretch);
  const marks = (all, radius, options = {}) =>
    [dot(all, { x: "x", y: "y", r: radius, symbol: (each) => shapes[place(each)], fill: unscaled((each) => groupColours[place(each)]), ...options })];
  const correlation = [-1, -0.5, 0, 0.5, 1];
  const scale = { color: muted, tickSize: 4, tickPadding: 6, ticks: correlation.map((each) => each * stretch), tickFormat: (value) => plainTick(value / stretch), labelArrow: "none", labelAnchor: "center" };
  const svg = plot({
    style,
    width: frame.width,
    height: frame.height,
    marginTop: 52,
    marginLeft: 56,
    marginRight: 56,
    marginBottom: 48,
    x: { domain: [frame.left, frame.right] },
    y: { domain: [frame.bottom, frame.top] },
    symbol: { type: "identity" },
    marks: [
      ruleX([0], { stroke: faint }),
      ruleY([0], { stroke: faint }),
      axisX({ label: `component 1${share(0)}`, labelAnchor: "center", labelArrow: "none", color: ink, tickFormat: plainTick }),
      axisY({ label: `component 2${share(1)}`, labelAnchor: "center", labelArrow: "none", color: ink, tickFormat: plainTick, ticks: 8, tickSize: 4, tickPadding: 6 }),
      axisX({ anchor: "top", label: "correlation with component 1", ...scale }),
      axisY({ anchor: "right", label: "correlation with component 2", ...scale }),
      line(circlePoints(stretch), { x: ([x]) => x, y: ([, y]) => y, stroke: muted, strokeDasharray: "2 4", curve: "linear-closed" }),
      ...marks(rows, rows.length < 1000 ? 3 : 2, { fillOpacity: 0.75 }),
      ...(coloured ? marks(groups, 7, { stroke: paper, strokeWidth: 2 }) : []),
      arrow(tips, { x1: 0, y1: 0, x2: "x", y2: "y", stroke: ink, strokeWidth: 1.6, headLength: 8 }),
      ...[1, -1].map((side) =>
        text(namesBeside(named, side, frame), {
          x: "x",
          y: "y",
          text: "name",
          dx: 6 * side,
          textAnchor: side > 0 ? "start" : "end",
          fill: ink,
          stroke: paper,
          strokeWidth: 4,
          fontWeight: 600,
        }),
      ),
    ],
  });
  const every = rows.length > 1 ? Number(rows[1].name) - Number(rows[0].name) : 1;
  let caption =
    "Biplot: the rows as points, on the scales below and on the left; the columns as arrows, on those above and on the right, where the dotted circle has radius 1.";
  if (coloured) caption += " The large marks are the means of the groups.";
  if (columns.length > named.length) caption += ` Of the columns, the ${named.length} with the longest arrows are named.`;
  if (every > 1) caption += ` One row in ${every} is drawn.`;
  return { svg, caption, legend: coloured ? legendOf(groups.map((group) => group.name)) : null };
}

/** How many units of the rows one of the columns takes, so that arrows and points fill the same room. */
function stretchOf(farthest, longest) {
  const fitting = [1, 1.5, 2, 2.5, 3, 4, 5, 7, 10, 15, 20].filter((stretch) => stretch * longest <= 0.75 * farthest);
  return fitting.at(-1) ?? 1;
}

function circlePoints(radius) {
  return Array.from({ length: 120 }, (_, k) => [radius * Math.cos((k * Math.PI) / 60), radius * Math.sin((k * Math.PI) / 60)]);
}

/** A picture with equal units both ways that holds the points, the circle, and the names of the columns. */
function frameOf(rows, named, stretch) {
  const room = 640;
  let [left, right, bottom, top] = [-stretch, stretch, -stretch, stretch];
  for (const { x, y } of rows) {
    left = Math.min(left, x);
    right = Math.max(right, x);
    bottom = Math.min(bottom, y);
    top = Math.max(top, y);
  }
  const [pointsLeft, pointsRight] = [left, right];
  for (let i = 0; i < 20; ++i) {
    const unit = (right - left) / room; // the more room the names take, the more units a letter takes
    left = pointsLeft;
    right = pointsRight;
    for (const { name, x } of named) {
      const reach = (12 + 8 * shortened(name).length) * unit;
      left = Math.min(left, x < 0 ? x - reach : left);
      right = Math.max(right, x >= 0 ? x + reach : right);
    }
  }
  const unit = (right - left) / (room - 20);
  const margin = 10 * unit;
  const height = (top - bottom) / unit + 20;
  return { left: left - margin, right: right + margin, bottom: bottom - margin, top: top + margin, unit, width: room + 112, height: height + 100 };
}

/** The names on one side, moved up or down where one would stand on another. */
function namesBeside(tips, side, { unit }) {
  const here = tips.filter(({ x }) => (x >= 0) === side > 0).sort((a, b) => a.y - b.y);
  const runs = []; // of names that touch: the sum of the wanted first places, and the names
  const distance = 17 * unit;
  for (const tip of here) {
    runs.push({ sum: tip.y, tips: [tip] });
    while (runs.length > 1) {
      const [before, last] = runs.slice(-2);
      const end = before.sum / before.tips.length + distance * before.tips.length;
      if (end <= last.sum / last.tips.length) break;
      runs.pop();
      before.sum += last.sum - last.tips.length * distance * before.tips.length;
      before.tips.push(...last.tips);
    }
  }
  return runs.flatMap((run) => {
    const farthest = Math.max(...run.tips.map(({ x }) => side * x));
    return run.tips.map((tip, i) => ({ name: shortened(tip.name), x: side * farthest, y: run.sum / run.tips.length + i * distance }));
  });
}

// ---- residuals ----

function pairs(records) {
  return records.map(([x, y]) => ({ x: Number(x), y: Number(y) }));
}

/** Points, and the dashed line that they should lie along or around. */
function residualPlot(points, lineMark, xLabel, yLabel, xTicks) {
  return plot({
    style,
    width: 460,
    height: 320,
    marginLeft: 64,
    marginBottom: 44,
    x: { inset: 6 },
    y: { inset: 6 },
    marks: [
      gridY({ stroke: faint, strokeOpacity: 1 }),
      axisX({ label: xLabel, labelAnchor: "center", labelArrow: "none", color: ink, tickFormat: plainTick, ticks: xTicks }),
      axisY({ label: yLabel, labelArrow: "none", color: ink, tickFormat: plainTick }),
      lineMark,
      dot(points, { x: "x", y: "y", r: points.length < 1000 ? 2.6 : 1.7, fill: groupColours[0], fillOpacity: 0.75 }),
    ],
  });
}

const dashed = { stroke: muted, strokeDasharray: "6 4", strokeWidth: 1.5 };

function residuals(records) {
  const svg = residualPlot(pairs(records.residuals), ruleY([0], dashed), "fitted value", "residual", 6);
  return { svg, caption: "Residuals over fitted values. A fit that holds leaves them without a shape around the dashed line." };
}

function residualQuantiles(records) {
  const points = pairs(records.residual_quantiles);
  const diagonal = line([points[0].x, points.at(-1).x], { x: (each) => each, y: (each) => each, ...dashed });
  const svg = residualPlot(points, diagonal, "quantile of the normal distribution", "residual in standard deviations");
  return { svg, caption: "Normal quantile plot of the residuals. Normal ones lie along the dashed line; long tails leave it at the ends." };
}
