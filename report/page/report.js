// The page's program: a table that is filtered and sorted, a scatter of error against speed, and a section for the
// function that the address names (#expf or #expf/native). All figures come from the data in the page.
"use strict";

const data = JSON.parse(document.getElementById("data").textContent);
const widths = [1, 2, 3, 4, 8, 16];
const paths = ["formula", "large arguments", "slow path"];
const type_names = {f32: "float", f64: "double", i32: "int", u32: "uint", i64: "long", u64: "ulong"};
const by_id = id => document.getElementById(id);

// ---- Elements. Text is never taken for markup.

function element(name, attributes = {}, ...children) {
  const e = document.createElement(name);
  for (const [key, value] of Object.entries(attributes))
    if (key === "class") e.className = value;
    else if (key.startsWith("on")) e.addEventListener(key.slice(2), value);
    else if (value === true) e.setAttribute(key, "");
    else if (value !== false && value != null) e.setAttribute(key, value);
  e.append(...children.filter(c => c != null));
  return e;
}
// Rows of cells, the first of each its head; a cell is a text, or an element.
function table_of(caption, head, rows, number_from = 99) {
  const is_number = i => i >= number_from ? "number" : "";
  const cell = (c, i) => i ? element("td", {class: is_number(i)}, c) : element("th", {scope: "row"}, c);
  return element("table", {}, element("caption", {}, caption),
    element("thead", {}, element("tr", {}, ...head.map((h, i) => element("th", {scope: "col", class: is_number(i)}, h)))),
    element("tbody", {}, ...rows.map(r => element("tr", {}, ...r.map(cell)))));
}
const scrolled = table => element("div", {class: "scroll", role: "region", tabindex: "0",
  "aria-label": table.caption.textContent}, table);
const code = text => element("code", {}, text);

// ---- Numbers.

function value_of(type, hex) {
  const bits = BigInt("0x" + hex), view = new DataView(new ArrayBuffer(8));
  switch (type) {
  case "f32": view.setUint32(0, Number(bits)); return view.getFloat32(0);
  case "f64": view.setBigUint64(0, bits); return view.getFloat64(0);
  case "i32": return Number(BigInt.asIntN(32, bits));
  case "i64": return BigInt.asIntN(64, bits);
  default: return bits;
  }
}
// The shortest decimal that stands for the lane alone.
function decimal(type, hex) {
  const v = value_of(type, hex);
  if (Object.is(v, -0)) return "-0";
  if (type !== "f32" || !Number.isFinite(v)) return String(v).replace("Infinity", "inf");
  for (let p = 1; p <= 9; p++) {
    const s = v.toPrecision(p);
    if (Math.fround(+s) === v) return String(+s);
  }
  return String(v);
}
const both = (type, hex) => decimal(type, hex) + "  0x" + hex;
const superscript = n => String(n).replace(/./g, c => "⁰¹²³⁴⁵⁶⁷⁸⁹⁻·"["0123456789-.".indexOf(c)]);
const power = e => "2" + superscript(e);
const short = x => x === 0 ? "0" : Math.abs(x) >= 1e5 || Math.abs(x) < 1e-3 ? x.toExponential(1) : String(+x.toPrecision(3));
function error_text(error, measure) {
  if (error === 0) return "exact";
  if (measure === "relative") return power(Math.round(Math.log2(error) * 10) / 10) + " relative";
  if (measure === "absolute") return error.toExponential(2) + " absolute";
  return (error < 10 ? error.toFixed(3) : error < 1e5 ? String(+error.toPrecision(3)) : error.toExponential(2)) + " ulp";
}
// For sorting and for plots with one scale: about what the error is in ulp of a value near 1.
function in_ulp(error, measure, type) {
  return measure === "ulp" ? error : error * 2 ** (type === "float" ? 23 : 52);
}
const time_text = ns => ns == null ? "" : ns < 10 ? ns.toFixed(3) : ns < 100 ? ns.toFixed(2) : ns.toFixed(1);
const ratio_text = r => r == null || !Number.isFinite(r) ? "" : r < 10 ? r.toFixed(2) : r.toFixed(1);

// ---- Figures of pairs.

const speed = new Map(), sets = new Set();
const speed_key = (family, tier, set, width) => family + "/" + tier + "/" + set + "/" + width;
for (const row of data.speed) {
  sets.add(row.set);
  for (const tier of row.tiers) speed.set(speed_key(row.family, tier, row.set, row.width), row);
}
const speed_of = (p, set, width) => speed.get(speed_key(p.family, p.tier, set, width));
const peer_name = row => !row || row.peer_ns == null ? "" : row.peer === "C" ? "compiled C" : row.peer === "SLEEF" ? "SLEEF" : "SLEEF " + row.peer;
const has_bounds = data.speed.some(r => r.bound_ns != null);

// One figure of a pair, with those of its peers: time a lane, or latency.
function figure_of(p, figure, width) {
  const row = speed_of(p, figure === "latency" ? "ordinary" : figure, width);
  if (!row) return {};
  if (figure === "latency")
    return {ours: row.latency_ns, peer: row.peer_latency_ns, libm: row.libm_latency_ns, row};
  return {ours: row.ns, peer: row.peer_ns, libm: row.libm_ns, row};
}

// What became of a pair since the baseline.
const old_speed = new Map();
for (const row of data.baseline?.speed ?? [])
  for (const tier of row.tiers) old_speed.set(speed_key(row.family, tier, row.set, row.width), row);
const noise = 1.08;
function change_of(p, figure, width) {
  const kernel = data.kernels[p.kernel], old_kernel = data.baseline?.kernels[p.kernel];
  const old = old_speed.get(speed_key(p.family, p.tier, figure === "latency" ? "ordinary" : figure, width));
  const before = figure === "latency" ? old?.latency_ns : old?.ns, after = figure_of(p, figure, width).ours;
  const comparable = kernel && old_kernel && (!kernel.estimates || data.estimates === data.baseline.estimates);
  return {ratio: before && after ? before / after : null, bits: comparable && kernel.digest !== old_kernel.digest,
    is_new: data.baseline && !old_kernel};
}
function change_cell(c) {
  const cell = element("span");
  if (c.is_new) cell.append(element("span", {class: "tag"}, "new"));
  if (c.ratio != null)
    cell.append(c.ratio > noise ? element("span", {class: "good"}, c.ratio.toFixed(2) + "× faster")
      : c.ratio < 1 / noise ? element("span", {class: "bad"}, (1 / c.ratio).toFixed(2) + "× slower") : "as before");
  if (c.bits) cell.append(" ", element("span", {class: "tag bits"}, "bits changed"));
  return cell;
}

const pairs = data.pairs;
for (const p of pairs) {
  p.name = p.family + (p.tier === "default" ? "" : "_" + p.tier);
  p.address = p.family + (p.tier === "default" ? "" : "/" + p.tier);
  p.types = p.result ? p.type + " → " + p.result : p.type;
  p.size = in_ulp(p.error, p.measure, p.type);
}

// ---- Head of the page.

{
  const of_float = pairs.filter(p => p.type === "float").length, of_double = pairs.filter(p => p.type === "double").length;
  by_id("lead").textContent = `${pairs.length} functions of vectors, of which ${of_float} take float and ${of_double} double: ` +
    "each with its largest error, its speed beside SLEEF and libm at six widths, and how a compiler calls it.";
  const known = Object.values(data.kernels);
  const lanes = known.reduce((n, k) => n + k.lanes, 0);
  const facts = [["Processor", data.processor || "not measured yet"], ["Measured", data.measured],
    ["Run", data.kind], ["Arguments tried", lanes.toLocaleString("en")], ["Timings", data.speed.length.toLocaleString("en")]];
  by_id("facts").append(...facts.map(([k, v]) => element("div", {}, element("dt", {}, k), element("dd", {}, v))));
  const kernels = new Set(pairs.map(p => p.kernel));
  if (!data.complete) {
    by_id("unfinished").hidden = false;
    by_id("unfinished").textContent = `This run was interrupted: ${known.length} of ${kernels.size} kernels have their ` +
      "accuracy here, and some families no speed. The same command goes on from there.";
  }
}

// ---- The table.

const controls = Object.fromEntries(["name", "type", "tier", "error", "speed", "builtin", "width", "figure"].map(n => [n, by_id("f-" + n)]));
{
  const option = (value, text = value) => element("option", {value}, text);
  const types = [...new Set(pairs.map(p => p.type))];
  controls.type.append(option("", "all"), ...types.map(t => option(t)));
  controls.tier.append(option("", "all"), ...["default", "rm", "native", "half"].map(t => option(t)));
  controls.width.append(...widths.map(w => {
    const o = option(String(w), w === 1 ? "1 lane" : w + " lanes");
    if (w === 8) o.setAttribute("selected", "");
    return o;
  }));
}
const width = () => +controls.width.value, figure = () => controls.figure.value;

const columns = [
  {head: "Function", key: p => p.name, cell: p => element("a", {href: "#" + p.address}, code(p.name))},
  {head: "Type", key: p => p.types, cell: p => p.types, rest: true},
  {head: "Tier", key: p => ["default", "rm", "native", "half"].indexOf(p.tier), cell: p => p.tier, rest: true},
  {head: "OpenCL C built-in", key: p => p.builtin || "~", rest: true, wrap: true,
    cell: p => p.builtin ? element("span", {}, code(p.builtin), p.relaxed ? element("span", {class: "tag"}, "relaxed") : null) : ""},
  {head: "Largest error", number: true, key: p => p.size, cell: p => error_text(p.error, p.measure)},
  {head: "OpenCL C allows", key: p => p.limit_value ?? Infinity, cell: p => p.limit ?? "", rest: true, wrap: true},
  {head: () => figure() === "latency" ? "ns per call" : "ns per lane", number: true,
    key: p => figure_of(p, figure(), width()).ours ?? Infinity, cell: p => time_text(figure_of(p, figure(), width()).ours)},
  {head: "× SLEEF", number: true, down: true, key: p => over_peer(p) ?? -1, cell: p => ratio_cell(over_peer(p))},
  {head: "× libm", number: true, down: true, rest: true, key: p => over_libm(p) ?? -1, cell: p => ratio_cell(over_libm(p))},
];
if (has_bounds)
  columns.push({head: "× port bound", number: true, key: p => over_bound(p) ?? Infinity, cell: p => ratio_text(over_bound(p))});
if (data.baseline)
  columns.push({head: "Since " + data.baseline.measured, key: p => -(change_of(p, figure(), width()).ratio ?? 1),
    cell: p => change_cell(change_of(p, figure(), width()))});

function over_peer(p) {
  const f = figure_of(p, figure(), width());
  return f.peer && f.row.peer !== "C" ? f.peer / f.ours : null;
}
function over_libm(p) {
  const f = figure_of(p, figure(), width());
  // Latencies are of calls: one of libm does one lane.
  return f.libm ? f.libm / f.ours * (figure() === "latency" ? width() : 1) : null;
}
function over_bound(p) {
  const f = figure_of(p, "ordinary", width());
  return f.row?.bound_ns ? f.ours / f.row.bound_ns : null;
}
const ratio_cell = r => r == null ? "" : element("span", {class: r >= 1 ? "good" : "bad"}, ratio_text(r));

const class_of = c => ["number", "rest", "wrap"].filter(k => c[k]).join(" ");
let sorted = {column: -1, down: false};
let shown = pairs;
function filtered() {
  const words = controls.name.value.trim().toLowerCase();
  const c = controls;
  return pairs.filter(p => {
    if (words && !p.name.toLowerCase().includes(words) && !(p.builtin ?? "").toLowerCase().includes(words)) return false;
    if (c.type.value && p.type !== c.type.value) return false;
    if (c.tier.value && p.tier !== c.tier.value) return false;
    if (c.error.value && !(p.size <= +c.error.value)) return false;
    if (c.speed.value === "4" ? !(over_libm(p) >= 4) : c.speed.value && !(over_peer(p) >= +c.speed.value)) return false;
    if (c.builtin.value === "yes" && !p.builtin) return false;
    if (c.builtin.value === "relaxed" && !(p.builtin && p.relaxed)) return false;
    if (c.builtin.value === "no" && p.builtin) return false;
    return true;
  });
}
function draw_head() {
  by_id("pairs").tHead.rows[0].replaceChildren(...columns.map((c, i) => {
    const text = typeof c.head === "function" ? c.head() : c.head;
    const order = sorted.column === i ? (sorted.down ? "descending" : "ascending") : null;
    return element("th", {scope: "col", class: class_of(c), "aria-sort": order},
      element("button", {type: "button", onclick: () => sort_by(i)}, text));
  }));
}
function sort_by(i) {
  sorted = {column: i, down: sorted.column === i ? !sorted.down : !!columns[i].down};
  draw_table();
  by_id("pairs").tHead.rows[0].cells[i].firstChild.focus();
}
function draw_table() {
  shown = filtered();
  if (sorted.column >= 0) {
    const key = columns[sorted.column].key, sign = sorted.down ? -1 : 1;
    shown.sort((a, b) => { const x = key(a), y = key(b); return sign * (x < y ? -1 : x > y ? 1 : 0); });
  }
  draw_head();
  by_id("choose-caption").textContent = `Accuracy and speed at ${width() === 1 ? "1 lane" : width() + " lanes"}; the buttons ` +
    "in the head sort. A ratio is the other's time over ours: above 1 ours is faster.";
  const chosen = address().family;
  by_id("pairs").tBodies[0].replaceChildren(...shown.map(p => {
    const cells = columns.map((c, i) => i ? element("td", {class: class_of(c)}, c.cell(p))
      : element("th", {scope: "row"}, c.cell(p)));
    return element("tr", {class: p.family === chosen ? "chosen" : "", "data-address": p.address,
      onclick: e => { if (!e.target.closest("a")) location.hash = p.address; }}, ...cells);
  }));
  by_id("count").textContent = shown.length === pairs.length ? `All ${pairs.length} functions`
    : `${shown.length} of ${pairs.length} functions`;
  draw_scatter();
}
by_id("filters").addEventListener("input", draw_table);
by_id("filters").addEventListener("submit", e => e.preventDefault());
by_id("filters").addEventListener("reset", () => setTimeout(() => { sorted = {column: -1, down: false}; draw_table(); }));

// ---- Plots: configuration of Chart.js.

const colour = name => getComputedStyle(document.documentElement).getPropertyValue("--" + name).trim();
Chart.defaults.font.family = getComputedStyle(document.body).fontFamily;
Chart.defaults.animation = false;
Chart.defaults.maintainAspectRatio = false;
Chart.defaults.plugins.legend.labels.usePointStyle = true;
Chart.defaults.plugins.legend.labels.boxHeight = 7;
function set_colours() {
  Chart.defaults.color = colour("soft");
  Chart.defaults.borderColor = colour("line");
}
const charts = {};
function draw(id, config, label) {
  charts[id]?.destroy();
  const canvas = by_id(id);
  if (!canvas) return;
  canvas.setAttribute("aria-label", label);
  charts[id] = new Chart(canvas, config);
}
const axis = (text, more = {}) => ({title: {display: true, text}, ...more});
const decades = {ticks: {callback: v => { const e = Math.log10(v); return Math.abs(e - Math.round(e)) < 1e-9 ? short(v) : ""; }}};

function draw_scatter() {
  const w = width(), f = figure() === "latency" ? "latency" : figure();
  const groups = {"default": [], "rm": [], "native, half": [], SLEEF: [], libm: []}, seen = new Map();
  // Tiers that are one kernel are one point.
  const add = (group, x, y, p, text, once) => {
    if (!(x > 0) || !(y > 0.01)) return;
    if (seen.has(once)) return void seen.get(once).names.add(text);
    const point = {x, y, address: p.address, names: new Set([text])};
    seen.set(once, point);
    groups[group].push(point);
  };
  for (const p of shown) {
    const {ours, peer, libm, row} = figure_of(p, f, w);
    if (!row) continue;
    const of_set = f === "ordinary" || f === "latency" ? row : speed_of(p, "ordinary", w);
    const group = p.tier === "native" || p.tier === "half" ? "native, half" : p.tier;
    add(group, ours, of_set?.error, p, p.name, p.family + "/" + p.kernel);
    if (row.peer !== "C") add("SLEEF", peer, of_set?.peer_error, p, peer_name(row) + " beside " + p.family, p.family + "/" + row.peer);
    add("libm", libm, of_set?.libm_error, p, "libm beside " + p.family, p.family + "/libm");
  }
  const looks = {"default": ["ours", "circle"], "rm": ["ours2", "rectRot"], "native, half": ["ours3", "triangle"],
    SLEEF: ["sleef", "rect"], libm: ["libm", "crossRot"]};
  draw("scatter", {
    type: "scatter",
    data: {datasets: Object.entries(groups).map(([label, points]) => ({label, data: points,
      backgroundColor: colour(looks[label][0]) + (label === "libm" ? "" : "b3"), borderColor: colour(looks[label][0]),
      pointStyle: looks[label][1], radius: 5, hoverRadius: 8}))},
    options: {
      onClick: (e, hits, chart) => { if (hits.length) location.hash = chart.data.datasets[hits[0].datasetIndex].data[hits[0].index].address; },
      onHover: (e, hits) => { e.native.target.style.cursor = hits.length ? "pointer" : ""; },
      scales: {x: axis(f === "latency" ? "nanoseconds per call" : "nanoseconds per lane", {type: "logarithmic", ...decades}),
        y: axis("largest error in ulp, over the same arguments", {type: "logarithmic", ...decades})},
      plugins: {tooltip: {callbacks: {label: c => `${[...c.raw.names].join(", ")}: ${time_text(c.raw.x)} ns, ${error_text(c.raw.y, "ulp")}`}}},
    },
  }, `Error against speed of ${shown.length} functions at ${w} lanes; the table above has the figures.`);
}

// ---- One function.

function address() {
  const [family, tier = "default"] = decodeURIComponent(location.hash.slice(1)).split("/");
  return {family, tier};
}
let view = "exponents", set = "ordinary", log_scale = null;

function choices(label, all, chosen, choose) {
  return element("div", {class: "choices", role: "group", "aria-label": label}, ...all.map(([value, text]) =>
    element("button", {type: "button", "aria-pressed": String(value === chosen), "data-value": value,
      onclick: () => { choose(value); document.querySelector(`#function-body .choices[aria-label="${label}"] [data-value="${value}"]`)?.focus(); }}, text)));
}

function draw_function(arrive) {
  const {family, tier} = address();
  const tiers = pairs.filter(p => p.family === family);
  const p = tiers.find(t => t.tier === tier) ?? tiers[0];
  if (!p) return;
  if (arrive) log_scale = null;
  const facts = data.families[family], kernel = data.kernels[p.kernel];
  by_id("function-hint").hidden = true;
  by_id("function-title").replaceChildren(code(p.name));
  document.title = p.name + ": accuracy and speed, Orvane";
  const body = by_id("function-body");
  const at8 = figure_of(p, "ordinary", 8);
  const card = (big, small) => element("div", {class: "card"}, element("b", {}, big), element("span", {}, small));
  const twins = pairs.filter(t => t.kernel === p.kernel && t !== p).map(t => t.name);
  body.replaceChildren(
    element("p", {}, facts.meaning),
    element("dl", {class: "about"}, element("dt", {}, "Formula"), element("dd", {}, facts.formula),
      element("dt", {}, "Domain"), element("dd", {}, facts.domain),
      element("dt", {}, "Built-in"), element("dd", {}, p.builtin ? code(p.builtin) : "none asks for it", p.relaxed && p.builtin ? ", with -cl-fast-relaxed-math" : ""),
      ...(twins.length ? [element("dt", {}, "Same code as"), element("dd", {}, twins.join(", "))] : [])),
    choices("Tier", tiers.map(t => [t.tier, t.tier]), p.tier, t => { location.hash = family + (t === "default" ? "" : "/" + t); }),
    element("div", {class: "cards"},
      card(error_text(p.error, p.measure), "largest error known" + (p.limit ? "; OpenCL C allows " + p.limit : "")),
      card(at8.ours ? time_text(at8.ours) + " ns" : "not measured", "per lane, at 8 lanes"),
      ...(at8.peer && at8.row.peer !== "C" ? [card(ratio_text(at8.peer / at8.ours) + "×", "the speed of " + peer_name(at8.row))] : []),
      ...(at8.libm ? [card(ratio_text(at8.libm / at8.ours) + "×", "the speed of libm")] : []),
      ...(data.baseline ? [card(change_cell(change_of(p, "ordinary", 8)), "since " + data.baseline.measured)] : [])),
    element("h3", {}, "Accuracy"), ...accuracy_parts(p, kernel, facts),
    element("h3", {}, "Speed"), ...speed_parts(p),
    element("h3", {}, "Special values"), ...special_parts(p, facts),
    element("h3", {}, "Calling forms"), forms_part(p));
  if (kernel?.exponents) draw_bins(p, kernel, facts);
  if (kernel?.plane) draw_plane(kernel, facts);
  draw_speed(p);
  if (arrive) {
    by_id("function").scrollIntoView();
    by_id("function-title").focus({preventScroll: true});
  }
  for (const row of by_id("pairs").tBodies[0].rows)
    row.classList.toggle("chosen", row.dataset.address === p.address);
}

function accuracy_parts(p, kernel, facts) {
  if (!kernel) return [element("p", {}, "Not measured in this run.")];
  const types = facts.special.types, parts = [];
  const arguments_text = list => list.map((hex, j) => both(types[j], hex)).join(",  ");
  const rows = Object.entries(kernel.largest).map(([path, l]) =>
    [path === "vector" ? paths[0] : path === "large" ? paths[1] : paths[2], l.error ? error_text(l.error, l.measure) : "none", code(arguments_text(l.arguments)), "this run"]);
  for (const k of kernel.known)
    rows.push([k.path === "vector" ? paths[0] : k.path === "large" ? paths[1] : paths[2], error_text(k.error, k.measure),
      code(arguments_text(k.arguments)), "worst case known; here " + error_text(k.here, k.measure)]);
  const exact = Object.values(kernel.largest).every(l => l.error === 0);
  if (exact) parts.push(element("p", {}, `No error in any of ${kernel.lanes.toLocaleString("en")} arguments.`));
  if (!exact && kernel.exponents)
    parts.push(
      choices("View", [["exponents", "by exponent"], ["linear", "ordinary range"]], view, v => { view = v; draw_function(); }),
      choices("Scale", [["linear", "linear"], ["log", "logarithmic"]], scale_of(kernel), v => { log_scale = v === "log"; draw_function(); }),
      element("div", {class: "chart"}, element("canvas", {id: "bins", role: "img"})),
      element("details", {}, element("summary", {}, "The plot as a table, with the worst argument of each part"), scrolled(bins_table(p, kernel, facts))));
  if (!exact && kernel.plane)
    parts.push(element("p", {}, "The largest error by the powers of two of both arguments, of either sign."),
      element("div", {class: "chart tall"}, element("canvas", {id: "plane", role: "img"})),
      element("div", {class: "legend"}, element("span", {id: "plane-low"}), element("i"), element("span", {id: "plane-high"})),
      element("details", {}, element("summary", {}, "The plot as a table, with the worst arguments of each cell"),
        scrolled(plane_table(kernel, facts))));
  parts.push(scrolled(table_of("Largest errors by path, decided by MPFR", ["Path", "Error", "Argument", "Found"], rows)));
  return parts;
}

// Bins in the order of their arguments: the place of a row, and the text of the place's lower end.
function bins_of(type) {
  const edges = data.edges[type].line, n = edges.length - 1, negative = type[0] === "u" ? 0 : n;
  return {
    count: negative + n,
    place: bin => bin < 0 ? n - 1 - (-1 - bin) : negative + bin,
    end: i => i < negative ? "-" + power(edges[n - i]) : i === negative && negative ? "0" : power(edges[i - negative]),
    part: bin => bin < 0 ? `-${power(edges[-bin])} to -${power(edges[-1 - bin])}` : `${power(edges[bin])} to ${power(edges[bin + 1])}`,
  };
}
// What the chosen view shows: points by path.
function points_of(kernel, facts) {
  const bins = bins_of(facts.special.types[0]), [lo, hi] = kernel.range, points = [[], [], []];
  const step = (hi - lo) / 96;
  if (view === "exponents")
    for (const [bin, path, largest, median, bits] of kernel.exponents)
      points[path].push({x: bins.place(bin) + 0.5, largest, median, bits, part: bins.part(bin)});
  else
    for (const [k, path, largest, median, bits] of kernel.linear)
      points[path].push({x: lo + (k + 0.5) * step, largest, median, bits, part: `${short(lo + k * step)} to ${short(lo + (k + 1) * step)}`});
  for (const list of points) list.sort((a, b) => a.x - b.x);
  return points;
}
function scale_of(kernel) {
  if (log_scale != null) return log_scale ? "log" : "linear";
  const largest = Math.max(...Object.values(kernel.largest).map(l => l.error));
  return kernel.measure !== "ulp" || largest > 40 ? "log" : "linear";
}
function bins_table(p, kernel, facts) {
  const type = facts.special.types[0];
  const rows = points_of(kernel, facts).flatMap((list, path) => list.map(b =>
    [b.part, paths[path], error_text(b.largest, kernel.measure), error_text(b.median, kernel.measure), code(both(type, b.bits))]));
  return table_of("Errors by argument", ["Arguments", "Path", "Largest error", "Median", "Argument of the largest"], rows);
}
function draw_bins(p, kernel, facts) {
  const type = facts.special.types[0], bins = bins_of(type), points = points_of(kernel, facts);
  const all = points.flat();
  if (!all.length) return;
  const names = ["ours", "ours2", "sleef"], log = scale_of(kernel) === "log", datasets = [];
  points.forEach((list, path) => {
    if (!list.length) return;
    const c = colour(names[path]);
    datasets.push({label: paths[path] + ", largest", data: list.map(b => ({x: b.x, y: b.largest, bin: b})), backgroundColor: c,
      borderColor: c, radius: 2.5, hoverRadius: 5, showLine: false});
    datasets.push({label: "median", data: list.filter(b => !log || b.median > 0).map(b => ({x: b.x, y: b.median, bin: b})),
      borderColor: c + "80", backgroundColor: c + "80", borderWidth: 1.5, radius: 1, showLine: false, pointStyle: "dash"});
  });
  const xs = all.map(b => b.x), exponents = view === "exponents";
  const lo = exponents ? Math.max(0, Math.floor(Math.min(...xs)) - 1) : kernel.range[0];
  const hi = exponents ? Math.min(bins.count, Math.ceil(Math.max(...xs)) + 1) : kernel.range[1];
  if (p.limit_value && p.measure === kernel.measure)
    datasets.push({label: "OpenCL C: " + p.limit, data: [{x: lo, y: p.limit_value}, {x: hi, y: p.limit_value}], borderColor: colour("limit"),
      backgroundColor: colour("limit"), borderDash: [7, 5], borderWidth: 2, radius: 0, hitRadius: 0, showLine: true, pointStyle: "line"});
  draw("bins", {
    type: "scatter", data: {datasets},
    options: {
      scales: {
        x: axis(exponents ? "argument, by powers of two" : "argument", {min: lo, max: hi,
          ticks: exponents ? {callback: v => Number.isInteger(v) ? bins.end(v) : "", maxRotation: 0, precision: 0, maxTicksLimit: 14} : {maxRotation: 0}}),
        y: axis("error, " + kernel.measure, log ? {type: "logarithmic", ...decades} : {beginAtZero: true}),
      },
      plugins: {tooltip: {callbacks: {label: c => c.raw.bin ? [`${c.dataset.label}: ${error_text(c.raw.y, kernel.measure)}`, c.raw.bin.part,
        "largest at " + both(type, c.raw.bin.bits)] : c.dataset.label}}},
    },
  }, `Largest and median error of ${p.name} over its argument; a table of the same figures follows.`);
}

const cell_part = (types, j, bin) => { const e = data.edges[types[j]].plane; return `${power(e[bin])} to ${power(e[bin + 1])}`; };
function plane_table(kernel, facts) {
  const types = facts.special.types;
  return table_of("Errors by both arguments", ["|x|", "|y|", "Largest error", "Median", "x", "y"], kernel.plane.map(c =>
    [cell_part(types, 0, c[0]), cell_part(types, 1, c[1]), error_text(c[2], kernel.measure), error_text(c[3], kernel.measure),
      code(both(types[0], c[4])), code(both(types[1], c[5]))]));
}
// A heat map: a bar that floats over each cell's part of the y axis, a dataset a row of cells.
function draw_plane(kernel, facts) {
  if (!kernel.plane.length || !by_id("plane")) return;
  const types = facts.special.types, edges = types.map(t => data.edges[t].plane);
  const sizes = kernel.plane.map(c => c[2]), high = Math.max(...sizes), low = Math.min(...sizes), log = high > 16 * 2;
  const share = e => log ? (Math.log(e) - Math.log(Math.max(low, high / 1e6))) / (Math.log(high) - Math.log(Math.max(low, high / 1e6)) || 1) : e / high;
  const ink = e => `rgb(${colour("heat")} / ${0.06 + 0.94 * Math.min(1, Math.max(0, share(e)))})`;
  by_id("plane-low").textContent = log ? error_text(Math.max(low, high / 1e6), kernel.measure) : "0";
  by_id("plane-high").textContent = error_text(high, kernel.measure);
  const rows = new Map();
  for (const c of kernel.plane) rows.set(c[1], [...rows.get(c[1]) ?? [], c]);
  draw("plane", {
    type: "bar",
    data: {labels: edges[0].slice(0, -1).map(power), datasets: [...rows].map(([y, cells]) => ({
      label: power(edges[1][y]), data: cells.map(c => ({x: power(edges[0][c[0]]), y: [y, y + 1], cell: c})),
      backgroundColor: cells.map(c => ink(c[2])), hoverBackgroundColor: colour("sleef"), grouped: false, barPercentage: 1,
      categoryPercentage: 1, borderSkipped: false}))},
    options: {
      scales: {x: axis("|x|, from this power of two up", {grid: {display: false}, ticks: {maxRotation: 0, autoSkipPadding: 12}}),
        y: axis("|y|", {min: 0, max: edges[1].length - 1, grid: {display: false}, ticks: {stepSize: 2, callback: v => Number.isInteger(v) ? power(edges[1][v]) : ""}})},
      plugins: {legend: {display: false}, tooltip: {callbacks: {title: () => "", label: c => {
        const cell = c.raw.cell;
        return [error_text(cell[2], kernel.measure) + ", median " + error_text(cell[3], kernel.measure), "x " + both(types[0], cell[4]), "y " + both(types[1], cell[5])];
      }}}},
    },
  }, "Heat map of the largest error by the powers of two of both arguments; a table of the same figures follows.");
}

function sets_of(p) {
  const here = [...sets].filter(s => speed_of(p, s, 8));
  return here.some(s => speed_of(p, s, 8).latency_ns != null) ? [...here, "latency"] : here;
}
const set_text = s => ({ordinary: "ordinary arguments", special: "1 special in 64", huge: "huge arguments", latency: "latency of a call"})[s] ?? s;
function speed_parts(p) {
  const here = sets_of(p);
  if (!here.length) return [element("p", {}, "Not measured in this run.")];
  if (!here.includes(set)) set = here[0];
  const rows = here.flatMap(s => widths.map(w => {
    const f = figure_of(p, s, w);
    const per_call = s === "latency";
    const row = [set_text(s), String(w), time_text(f.ours), f.row.peer === "C" && per_call ? "" : time_text(f.peer), per_call ? "" : ratio_text(f.peer / f.ours),
      time_text(f.libm), per_call ? "" : ratio_text(f.libm / f.ours)];
    if (has_bounds) row.push(s === "ordinary" ? time_text(f.row.bound_ns) : "");
    if (data.baseline) row.push(change_cell({...change_of(p, s, w), bits: false}));
    return row;
  }));
  const name = peer_name(speed_of(p, here[0], 8)) || "SLEEF";
  const head = ["Arguments", "Lanes", "Orvane, ns", name + ", ns", "×", "libm, ns", "×"];
  if (has_bounds) head.push("Port bound, ns");
  if (data.baseline) head.push("Since " + data.baseline.measured);
  return [choices("Arguments", here.map(s => [s, set_text(s)]), set, s => { set = s; draw_function(); }),
    element("div", {class: "chart"}, element("canvas", {id: "speed", role: "img"})),
    element("details", {}, element("summary", {}, "All figures as a table"),
      scrolled(table_of("Nanoseconds per lane, and of latency nanoseconds per call", head, rows, 1)))];
}
function draw_speed(p) {
  if (!by_id("speed")) return;
  const of = name => widths.map(w => figure_of(p, set, w)[name] ?? null);
  const name = peer_name(figure_of(p, set, 8).row);
  const datasets = [["Orvane", "ours", of("ours")], [name, "sleef", of("peer")], ["libm", "libm", of("libm")]]
    .filter(d => d[2].some(v => v != null))
    .map(([label, c, list]) => ({label, data: list, backgroundColor: colour(c), borderRadius: 4, maxBarThickness: 36}));
  if (has_bounds && set === "ordinary")
    datasets.push({label: "port bound", type: "line", data: widths.map(w => figure_of(p, set, w).row?.bound_ns ?? null), borderColor: colour("limit"),
      backgroundColor: colour("limit"), pointStyle: "line", radius: 12, borderWidth: 2, showLine: false});
  draw("speed", {
    type: "bar", data: {labels: widths.map(w => w === 1 ? "1 lane" : w + " lanes"), datasets},
    options: {scales: {x: {grid: {display: false}}, y: axis(set === "latency" ? "nanoseconds per call" : "nanoseconds per lane", {beginAtZero: true})},
      plugins: {tooltip: {callbacks: {label: c => `${c.dataset.label}: ${time_text(c.raw)} ns`}}}},
  }, `Time of ${p.name} at six widths beside SLEEF and libm, ${set_text(set)}; a table of the same figures follows.`);
}

function special_parts(p, facts) {
  const s = facts.special;
  const of_tier = pairs.filter(t => t.family === p.family && t.kernel === p.kernel && s.tiers[t.tier])[0];
  const given = s.tiers[of_tier?.tier ?? "default"];
  const result = text => text.split(",").map((hex, i) => decimal(s.results[i], hex)).join(", ");
  const cell = text => element("span", {title: "0x" + text.replace(",", ", 0x")}, result(text));
  if (s.triples)
    return [scrolled(table_of("By calling the export", ["x", "y", "z", "Result"], s.triples.map((t, i) =>
      [...t.map((hex, j) => decimal(s.types[j], hex)), cell(given[i])])))];
  if (!s.y)
    return [scrolled(table_of("By calling the export", ["x", "Result", "Bits of the result"], s.x.map((x, i) =>
      [decimal(s.types[0], x), cell(given[i]), code("0x" + given[i].replace(",", ", 0x"))])))];
  return [scrolled(table_of("By calling the export: x down, y across", ["x \\ y", ...s.y.map(y => decimal(s.types[1], y))], s.x.map((x, i) =>
    [decimal(s.types[0], x), ...s.y.map((y, j) => cell(given[i * s.y.length + j]))]), 1))];
}
function forms_part(p) {
  const suffix = p.tier === "default" ? "" : "_" + p.tier;
  return scrolled(table_of("Registers of the arguments and results; vector registers 8 to 15, rdi and rsi survive a call in registers",
    ["Export", "Form", "Arguments in", "Results in"], data.forms[p.form].map((f, i) =>
      [code(`__orvane_l9_${p.family}${widths[i]}${suffix}`), f.memory ? "memory" : "registers", code(f.in.join(";  ")), code(f.out.join(";  "))])));
}

// ---- Worst cases, programs, changes.

{
  const rows = [];
  for (const [name, kernel] of Object.entries(data.kernels)) {
    const p = pairs.find(q => q.kernel === name), types = p ? data.families[p.family].special.types : [];
    for (const k of kernel.known)
      if (p) rows.push([element("a", {href: "#" + p.address}, code(p.name)), k.path === "vector" ? paths[0] : k.path === "large" ? paths[1] : paths[2],
        error_text(k.error, k.measure), error_text(k.here, k.measure), code(k.arguments.map(a => "0x" + a).join(", ")),
        k.arguments.map((a, j) => decimal(types[j], a)).join(", "), k.any_processor ? "" : "by its estimates"]);
  }
  const table = table_of("Largest known errors by path", ["Function", "Path", "Error", "Here", "Argument, bits", "Decimal", "Processor"], rows);
  table.id = "worst-table";
  table.caption.id = "worst-caption";
  by_id("worst-table").replaceWith(table);
  by_id("worst-summary").textContent = `All ${rows.length}`;
  if (!rows.length) by_id("worst").hidden = true;
}
for (const program of data.programs) {
  by_id("programs").hidden = false;
  document.querySelector("nav [href='#programs']").hidden = false;
  const [head, ...rows] = program.table;
  by_id("programs-body").append(element("h3", {}, program.title), scrolled(table_of(program.program, head, rows, 1)));
}
if (data.baseline) {
  const b = data.baseline, changes = pairs.map(p => ({p, ...change_of(p, "ordinary", 8)}));
  const faster = changes.filter(c => c.ratio > noise), slower = changes.filter(c => c.ratio && c.ratio < 1 / noise), bits = changes.filter(c => c.bits);
  by_id("changes").hidden = false;
  const list = (title, all) => all.length ? element("details", {}, element("summary", {}, `${all.length} ${title}`),
    element("p", {}, ...all.flatMap(c => [element("a", {href: "#" + c.p.address}, code(c.p.name)), c.ratio && title !== "with other bits" ? " " + c.ratio.toFixed(2) + "  " : "  "])))
    : element("p", {}, `None ${title}.`);
  by_id("changes").append(element("h2", {id: "changes-title"}, "Since " + b.measured),
    element("p", {}, `Beside a ${b.kind} run of ${b.measured} on ${b.processor || "an unknown processor"}, at 8 lanes; within ${Math.round((noise - 1) * 100)} % is noise.` +
      (b.estimates !== data.estimates ? " Its estimates are another processor's: bits of kernels that they feed are not compared." : "")),
    list("faster", faster.sort((a, c) => c.ratio - a.ratio)), list("slower", slower.sort((a, c) => a.ratio - c.ratio)), list("with other bits", bits));
}

// ---- Going on.

function all_anew() {
  set_colours();
  draw_table();
  if (pairs.some(p => p.family === address().family)) draw_function();
}
addEventListener("hashchange", () => { if (pairs.some(p => p.family === address().family)) draw_function(true); });
matchMedia("(prefers-color-scheme: dark)").addEventListener("change", all_anew);
all_anew();
if (pairs.some(p => p.family === address().family)) draw_function(true);
