// The backgrounds: the whole card is picture.
import { colours as c, darker, dice, flower, heart, heartPath, leaf, lighter, lying, sheet, star, times, upright }
  from './tekenen.mjs';

const n = (value) => value.toFixed(1);
const disc = (x, y, r, fill, opacity = 1) => `<circle cx="${n(x)}" cy="${n(y)}" r="${n(r)}" fill="${fill}" ` +
  `opacity="${opacity}"/>`;
const line = (d, stroke, width, more = '') =>
  `<path d="${d}" fill="none" stroke="${stroke}" stroke-width="${width}" stroke-linecap="round" ${more}/>`;
const at = (x, y, size, inner, turn = 0) => `<g transform="translate(${n(x)} ${n(y)}) rotate(${turn}) ` +
  `scale(${size})">${inner}</g>`;
const pick = (list, share) => list[Math.floor(share * list.length)];

/** A sky that runs through the tones, given as [share of the height, colour]. */
const sky = ({ width, height }, ...tones) =>
  '<linearGradient id="lucht" x1="0" y1="0" x2="0" y2="1">' +
  tones.map(([share, tone]) => `<stop offset="${share}" stop-color="${tone}"/>`).join('') +
  '</linearGradient>' + sheet(width, height, 'url(#lucht)');

/** Land from a smooth line along the points down to the lower edge. */
function land({ height }, points, fill) {
  const bends = points.slice(1, -1).map(([x, y], i) => {
    const [nextX, nextY] = points[i + 2];
    const share = i === points.length - 3 ? 1 : 0.5;
    return `Q${x} ${y} ${n(x + (nextX - x) * share)} ${n(y + (nextY - y) * share)}`;
  });
  return `<path d="M${points[0].join(' ')}${bends.join('')}V${height}H${points[0][0]}Z" fill="${fill}"/>`;
}

/** A heap of round tufts in one colour: a bush, a crown, a cloud. */
const tufts = (list, fill, opacity = 1) =>
  `<g fill="${fill}" opacity="${opacity}">` +
  list.map(([x, y, r]) => `<circle cx="${n(x)}" cy="${n(y)}" r="${n(r)}"/>`).join('') + '</g>';

/** A fair-weather cloud with a flat foot, 120 wide. */
const cumulus = (x, y, size, fill = '#fffdf7', opacity = 0.9) => at(x, y, size, `<g opacity="${opacity}"><path fill="${fill}"
  d="M-48 0A17 17 0 0 1 -42 -32A26 26 0 0 1 2 -46A22 22 0 0 1 38 -32A17 17 0 0 1 46 0Z"/></g>`);

const poplar = (x, y, size, fill) => at(x, y, size, '<path d="M0 0V-12" stroke="#7d6248" stroke-width="3"/>' +
  `<path d="M0 -58C10 -44 12 -26 8 -12Q0 -4 -8 -12C-12 -26 -10 -44 0 -58Z" fill="${fill}"/>`);

/** A flock of gulls, each [x, y, size]. */
const gulls = (list) => list.map(([x, y, size]) =>
  at(x, y, size, line('M-10 -4Q-4 -8 0 0Q4 -8 10 -4', c.ink, 1.6, 'stroke-opacity=".6"'))).join('');

function heuvels() {
  const roll = dice(5);
  const hill = (y, swell, fill) => `<path d="M0 ${y}C90 ${y - swell} 150 ${y + swell * 0.6} 240 ${y}S390 ${y - swell * 0.8} ` +
    `440 ${y - swell * 0.2}V640H0Z" fill="${fill}"/>`;
  const tree = (x, y, s, fill) => `<path d="M${x} ${y}V${y - 14 * s}" stroke="#7d6248" stroke-width="${2.4 * s}"/>` +
    `<ellipse cx="${x}" cy="${y - 24 * s}" rx="${9 * s}" ry="${15 * s}" fill="${fill}"/>`;
  const blooms = times(120, () => {
    const y = 556 + roll() * 84;
    const [x, size] = [roll() * 440, (y - 520) / 24];
    return `<circle cx="${x.toFixed(1)}" cy="${y.toFixed(1)}" r="${size.toFixed(1)}" ` +
      `fill="${[c.terracotta, c.ochre, '#fffaf0', c.plum][Math.floor(roll() * 4)]}"/>` +
      `<circle cx="${x.toFixed(1)}" cy="${y.toFixed(1)}" r="${(size * 0.36).toFixed(1)}" fill="#7a5a36" opacity=".6"/>`;
  }).join('');
  const cloud = (x, y, s) => `<g transform="translate(${x} ${y}) scale(${s})" fill="#fff" opacity=".55">` +
    `<ellipse cx="0" cy="0" rx="46" ry="12"/><ellipse cx="-14" cy="-9" rx="20" ry="13"/>` +
    `<ellipse cx="14" cy="-12" rx="24" ry="17"/></g>`;
  return '<linearGradient id="lucht" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#a9d0da"/>' +
    '<stop offset=".55" stop-color="#fbe3bf"/><stop offset="1" stop-color="#f6bf98"/></linearGradient>' +
    sheet(440, 640, 'url(#lucht)') + '<circle cx="316" cy="300" r="96" fill="#fff3cf" opacity=".35"/>' +
    '<circle cx="316" cy="300" r="66" fill="#fff3cf" opacity=".5"/><circle cx="316" cy="300" r="42" fill="#fbd98a"/>' +
    cloud(96, 110, 1.2) + cloud(350, 176, 0.9) + cloud(200, 230, 0.7) +
    hill(380, 46, '#b7c7ae') + hill(428, 54, '#9dba94') + tree(72, 412, 0.8, '#86a57e') + tree(92, 416, 1, '#7d9d76') +
    tree(380, 404, 0.9, '#86a57e') +
    hill(476, 40, '#84a67c') + tree(284, 486, 1.4, '#6a8f66') + tree(308, 484, 1.1, '#73986d') +
    tree(330, 480, 1.5, '#648a62') + hill(536, 34, '#6f9568') + blooms;
}

function zee() {
  const roll = dice(17);
  const wave = (y, fill, step, height) => `<path d="M${-step} ` +
    `${y}${times(Math.ceil(640 / step) + 2, () => `q${step / 2} ${-height} ${step} 0`).join('')}V440H${-step}Z" fill="${fill}"/>`;
  const gull = (x, y, s) => `<path d="M${x - 10 * s} ${y - 4 * s}Q${x - 4 * s} ${y - 8 * s} ${x} ${y}Q${x + 4 * s} ` +
    `${y - 8 * s} ${x + 10 * s} ${y - 4 * s}" fill="none" stroke="${c.ink}" stroke-opacity=".6" stroke-width="1.6"/>`;
  const boat = (x, y, s, sail) => `<g transform="translate(${x} ${y}) scale(${s})">` +
    `<path d="M-40 0H44L30 18H-28Z" fill="#a65a3d"/><path d="M-36 5H41" stroke="#fff" stroke-width="2.4"/>` +
    `<path d="M0 0V-78" stroke="#6d4a33" stroke-width="3"/><path d="M4 -76Q34 -40 38 -8H4Z" fill="#fffaf0"/>` +
    `<path d="M-4 -70Q-26 -40 -30 -8H-4Z" fill="${sail}"/><path d="M0 -78L16 -73L0 -68Z" fill="${c.terracotta}"/></g>`;
  const shells = times(70, () => `<circle cx="${(roll() * 640).toFixed(1)}" cy="${(392 + roll() * 48).toFixed(1)}" ` +
    `r="${(0.8 + roll() * 1.6).toFixed(1)}" fill="#c9a067" opacity=".6"/>`).join('');
  return '<linearGradient id="hemel" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#8cc3d6"/>' +
    '<stop offset="1" stop-color="#fdf0d8"/></linearGradient>' + sheet(640, 440, 'url(#hemel)') +
    '<circle cx="120" cy="92" r="64" fill="#fff6d6" opacity=".4"/><circle cx="120" cy="92" r="38" fill="#fce09a"/>' +
    gull(300, 86, 1.2) + gull(342, 110, 0.9) + gull(262, 120, 0.8) + gull(520, 60, 1) +
    '<rect y="262" width="640" height="180" fill="#7fb3c4"/>' + boat(200, 262, 0.5, c.ochre) + wave(276, '#74abbe', 34, 7) +
    boat(452, 272, 1.15, c.terracotta) + wave(302, '#639eb4', 46, 9) + wave(334, '#5590a8', 58, 10) +
    '<path d="M0 372Q160 348 320 372T640 366V440H0Z" fill="#eef6f3"/><path d="M0 380Q160 356 320 380T640 374V440H0Z" ' +
    'fill="#f0d8a6"/>' + shells + star(80, 412, 13, c.terracotta, 5, -70, 0.45) + star(566, 420, 10, c.ochre, 5, -100, 0.45);
}

function rijstpapier() {
  const roll = dice(29);
  const loose = times(28, (i) => {
    const [x, y, turn] = [(i % 4) * 116 + 30 + roll() * 60, Math.floor(i / 4) * 96 + 20 + roll() * 54, roll() * 360];
    const fill = ['#dfe6cf', '#f5ddd0', '#f7e6c4', '#dbe7ea', '#e9dde8'][i % 5];
    return (i + Math.floor(i / 4)) % 2 ? times(3, (k) => leaf(x, y, 30, turn + (k - 1) * 46, fill)).join('')
      : `<g opacity=".55">${flower(x, y, 22, ['#f0c5b4', '#f3d59b', '#d5c0d3'][i % 3], 6, '#f6e3b4')}</g>`;
  }).join('');
  const fibres = times(130, () => {
    const [x, y] = [roll() * 440, roll() * 640];
    return `<path d="M${x.toFixed(1)} ${y.toFixed(1)}q${(roll() * 24 - 12).toFixed(1)} ${(roll() * 12 - 6).toFixed(1)} ` +
      `${(roll() * 40 - 20).toFixed(1)} ${(roll() * 30 - 15).toFixed(1)}" fill="none" stroke="#d9c7a2" stroke-opacity=".5" ` +
      `stroke-width=".8"/>`;
  }).join('');
  return sheet(440, 640, '#fdf8ec') + fibres + loose;
}

/** A tower mill with its foot at (x, y), 190 high. */
function molen(x, y, size) {
  const sail = (turn) => `<g transform="rotate(${turn})"><rect x="3" y="-80" width="15" height="60" fill="#fffaf0"/>` +
    `<path d="M3 -80h15M3 -68h15M3 -56h15M3 -44h15M3 -32h15M3 -20h15M10.5 -80v60M18 -80v60" stroke="#8a6a50" ` +
    `stroke-width="1.2"/>` +
    '<path d="M0 0V-83" stroke="#6d4a33" stroke-width="4" stroke-linecap="round"/></g>';
  return at(x, y, size, '<path d="M-31 0L-27 -40H27L31 0Z" fill="#c47a5b"/><path d="M6 0L5 -40H27L31 0Z" fill="#ae6549"/>' +
    '<path d="M-9 0V-20A9 9 0 0 1 9 -20V0Z" fill="#4f5f52"/>' +
    '<path d="M-25 -40L-16 -108H16L25 -40Z" fill="#8f8268"/><path d="M5 -40L4 -108H16L25 -40Z" fill="#7a6e58"/>' +
    '<rect x="-17" y="-72" width="8" height="11" rx="1" fill="#fffaf0"/><rect x="-14" y="-95" width="6" height="9" rx="1" ' +
    'fill="#fffaf0"/>' +
    '<rect x="-42" y="-44" width="84" height="5" rx="1.5" fill="#6d4a33"/>' +
    '<path d="M-41 -44V-54H41V-44M-27 -54V-44M-13 -54V-44M0 -54V-44M13 -54V-44M27 -54V-44" fill="none" stroke="#6d4a33" ' +
    'stroke-width="1.6"/>' +
    '<path d="M-38 -40L-27 -24M38 -40L27 -24" stroke="#6d4a33" stroke-width="2.6"/>' +
    `<path d="M-19 -106C-19 -124 -8 -131 2 -131C14 -131 20 -121 20 -106Z" fill="${c.green}"/>` +
    `<path d="M-21 -108H22V-103H-21Z" fill="#fffaf0"/>` +
    `<g transform="translate(-2 -116)">${[18, 108, 198, 288].map(sail).join('')}<circle r="5" fill="#6d4a33"/></g>`);
}

function polder() {
  const roll = dice(41);
  const ditch = (near, wide) => `<path d="M250 268L${near} 440H${near + wide}Z" fill="#9cc6d2"/>` +
    `<path d="M250 268L${near + wide * 0.55} 440H${near + wide}Z" fill="#b9d9df"/>`;
  const field = (near, wide, fill) => `<path d="M250 268L${near} 440H${near + wide}Z" fill="${fill}"/>`;
  const greens = ['#a5bf86', '#9bb87f', '#b1c78f', '#a2bc83', '#aac389', '#9bb87f'];
  const fields = greens.map((fill, i) => field(-900 + i * 330, 330, fill)).join('');
  const cow = (x, y, size, coat) => at(x, y, size, `<path d="M-13 -4V8M-8 -4V8M8 -4V8M13 -4V8" stroke="${coat}" ` +
    `stroke-width="3"/>` +
    '<rect x="-16" y="-13" width="32" height="14" rx="6" fill="#fffdf7"/>' +
    `<path d="M-10 -13h9q2 8 -5 9q-6 -1 -4 -9Z" fill="${coat}"/>` +
    `<path d="M6 -13h10v9q-7 2 -9 -3Z" fill="${coat}"/><path d="M14 -14L24 -13Q28 -8 23 -6L15 -7Z" fill="${coat}"/>`);
  const reeds = (x, count, high) => times(count, () => {
    const [foot, top] = [x + roll() * 60, 440 - high * (0.5 + roll() * 0.5)];
    const bend = foot + roll() * 16 - 8;
    return line(`M${n(foot)} 446Q${n(foot)} ${n(top + 30)} ${n(bend)} ${n(top)}`, '#7c9a68', 2.2) +
      (roll() < 0.5 ? `<rect x="${n(bend - 2.6)}" y="${n(top - 4)}" width="5.2" height="16" rx="2.6" fill="#8a6244"/>` : '');
  }).join('');
  const trees = times(15, (i) =>
    poplar(14 + i * 13 + roll() * 5, 270, 0.34 + roll() * 0.16, pick(['#8fb0a0', '#82a593'], roll()))).join('');
  return sky(lying, [0, '#9ccbd9'], [0.62, '#f4efdc']) + cumulus(130, 96, 1.5) + cumulus(330, 60, 0.9, '#fffdf7', 0.75) +
    cumulus(560, 120, 1.15) + cumulus(410, 178, 0.7, '#fffdf7', 0.7) + cumulus(220, 196, 0.5, '#fffdf7', 0.7) +
    gulls([[300, 130, 1], [330, 146, 0.8], [268, 150, 0.7]]) + trees +
    '<path d="M322 270V250L328 218L334 250V258H356V270Z" fill="#a9a7a0"/><path d="M334 258L345 248L358 258Z" fill="#c08a72"/>' +
    '<rect y="266" width="640" height="4" fill="#8fb092"/><rect y="268" width="640" height="172" fill="#a5bf86"/>' + fields +
    ditch(-560, 60) + ditch(30, 74) + ditch(560, 66) + ditch(1120, 70) + molen(492, 300, 1.02) +
    '<path d="M446 300Q492 288 540 300Q492 310 446 300Z" fill="#7f9f6c"/>' +
    cow(150, 318, 0.6, '#5f524b') + cow(74, 316, 0.56, '#a8694c') + cow(110, 338, 0.78, '#5f524b') + cow(366, 366, 1, '#a8694c') +
    reeds(4, 22, 90) + reeds(572, 20, 70);
}

/** A tulip's head in two tones, 20 high, its foot at (0, 0). */
const tulip = (fill) => `<path d="M-7 -16Q-4 -14 -3.5 -11Q0 -22 3.5 -11Q4 -14 7 -16Q11 0 0 0Q-11 0 -7 -16Z" fill="${fill}"/>` +
  `<path d="M0 -18Q5 -10 0 0Q-5 -10 0 -18Z" fill="${lighter(fill)}" opacity=".45"/>`;

function tulpenveld() {
  const [vanishX, vanishY, wide] = [404, 176, 132];
  const tones = [c.terracotta, '#f0c15f', '#e79a8f', c.plum, '#fbeedb', '#c8503f'];
  const depths = times(30, (i) => 0.3 * 1.075 ** i).filter((depth) => depth < 1.28);
  const beds = times(90, (i) => ({ left: -5460 + i * wide, tone: tones[i % tones.length] }));
  const bed = (left, fill, opacity) =>
    `<path d="M${vanishX} ${vanishY}L${left} 440H${left + wide * 0.74}Z" fill="${fill}" opacity="${opacity}"/>`;
  const ground = beds.map(({ left, tone }) => bed(left, tone, 1) + bed(left, darker(tone), 0.3)).join('');
  const head = (foot, depth, odd, tone) => {
    const [x, y] = [vanishX + (foot - vanishX) * depth, vanishY + (440 - vanishY) * depth + odd * 7 * depth];
    return x < -20 || x > 660 ? '' : at(x, y, depth * 1.6, tulip(tone));
  };
  const heads = depths.map((depth) => beds.map(({ left, tone }, i) =>
    times(3, (k) => head(left + wide * (0.09 + 0.28 * k), depth, (k + i) % 2, tone)).join('')).join('')).join('');
  const haze = '<linearGradient id="nevel" x1="0" y1="0" x2="0" y2="1">' +
    '<stop offset="0" stop-color="#fbe9cc" stop-opacity=".75"/>' +
    '<stop offset="1" stop-color="#fbe9cc" stop-opacity="0"/></linearGradient>' +
    '<rect y="176" width="640" height="150" fill="url(#nevel)"/>';
  const trees = [24, 40, 60, 74, 560, 578, 592, 612].map((x, i) =>
    poplar(x, vanishY + 2, 0.5 + (i % 3) * 0.1, '#9db59a')).join('');
  const farm = '<path d="M0 0V-14H64V0Z" fill="#b98068"/><path d="M-6 -13L14 -40H50L70 -13Z" fill="#c79a6a"/>' +
    '<path d="M10 -2V-10H17V-2ZM26 -2V-10H33V-2ZM45 0V-11H54V0Z" fill="#fffaf0"/>';
  return sky(lying, [0, '#f8d9b8'], [0.24, '#fdeccb'], [0.42, '#fff6e2']) + disc(196, 112, 62, '#fffaf0', 0.5) +
    disc(196, 112, 36, '#fbd98a') +
    cumulus(330, 62, 0.8, '#fffaf0', 0.8) + cumulus(520, 96, 1.05, '#fffaf0', 0.8) + cumulus(66, 66, 0.7, '#fffaf0', 0.7) +
    '<path d="M0 170Q160 158 320 168T640 162V190H0Z" fill="#c5d0b0"/>' + trees + at(112, vanishY + 2, 0.9, farm) +
    '<rect y="176" width="640" height="264" fill="#7f9f6c"/>' + ground + heads + haze;
}

/** A trunk that runs up out of the card and spreads at its foot. */
const trunk = (x, foot, width, fill) => `<path d="M${x - width * 0.36} -10L${x - width * 0.5} ${foot - 26}Q${x - width * 0.6} ` +
  `${foot} ${x - width} ${foot + 4}` +
  `H${x + width}Q${x + width * 0.6} ${foot} ${x + width * 0.5} ${foot - 26}L${x + width * 0.36} -10Z" fill="${fill}"/>`;

const toadstool = (x, y, size) => at(x, y, size, '<path d="M-5 0Q-3 -10 -4 -20H4Q3 -10 5 0Z" fill="#fbeedb"/>' +
  '<path d="M-18 -17Q-16 -36 0 -36T18 -17Q0 -11 -18 -17Z" fill="#c8503f"/>' + disc(-8, -24, 2.6, '#fffaf0') +
  disc(3, -29, 3, '#fffaf0') + disc(10, -21, 2.2, '#fffaf0'));

function herfstbos() {
  const roll = dice(61);
  const heap = (count, x0, x1, y, swell, size) => times(count, (i) =>
    [x0 + ((x1 - x0) * i) / (count - 1) + roll() * 16 - 8, y + (roll() * 2 - 1) * swell, size * (0.75 + roll() * 0.5)]);
  const canopy = (y, size, fill) => tufts(heap(12, -10, 450, y, size * 0.5, size), fill) +
    `<rect width="440" height="${y}" fill="${fill}"/>`;
  const drift = (count, top, size) => times(count, () => leaf(roll() * 440, top + roll() * (640 - top),
    size * (0.7 + roll() * 0.6), roll() * 360, pick([c.terracotta, c.ochre, '#c8703f', '#e0a24e'], roll()))).join('');
  return sky(upright, [0, '#f6d79c'], [0.5, '#fff3d6'], [0.8, '#f8dcae']) + disc(226, 330, 150, '#fffaf0', 0.45) +
    disc(226, 330, 90, '#fffaf0', 0.5) +
    [40, 96, 150, 300, 352, 404].map((x, i) => trunk(x, 430 + (i % 2) * 6, 9 + (i % 3) * 2, '#ecc794')).join('') +
    canopy(104, 40, '#f3c878') + land(upright, [[0, 428], [110, 412], [220, 430], [330, 410], [440, 426]], '#efc98a') +
    [[68, 18], [128, 13], [330, 14], [378, 19]].map(([x, width]) => trunk(x, 470, width, '#c8966a')).join('') +
    canopy(62, 40, '#e9ac54') + land(upright, [[0, 470], [120, 452], [230, 474], [330, 456], [440, 468]], '#dfab66') +
    '<path d="M232 462C250 478 176 494 216 524S338 570 292 640H84C150 590 226 566 172 530S216 480 232 462Z" fill="#f8e2b8"/>' +
    [[8, 34], [426, 38]].map(([x, width]) => trunk(x, 574, width, '#8f6248')).join('') +
    canopy(18, 36, '#d98a4a') + tufts([[0, 80, 46], [34, 58, 30], [-6, 130, 34]], '#d98a4a') +
    tufts([[440, 76, 50], [404, 54, 30], [446, 128, 32]], '#c8703f') +
    land(upright, [[0, 556], [60, 540], [110, 584], [140, 640]], '#c98d50') +
    land(upright, [[288, 640], [330, 570], [390, 548], [440, 556]], '#c98d50') +
    drift(18, 590, 13) + drift(12, 150, 12) + toadstool(52, 590, 1.05) + toadstool(78, 600, 0.7) + toadstool(392, 604, 0.9);
}

function sterrennacht() {
  const roll = dice(73);
  const specks = times(90, () => {
    const [x, y, size, glow] = [roll() * 440, 12 + roll() * 420, 0.7 + roll() * 1.1, 0.35 + roll() * 0.5];
    return Math.hypot(x - 322, y - 132) < 70 ? '' : disc(x, y, size, '#fdf3d2', n(glow));
  }).join('');
  const stars = [[58, 56, 9], [150, 116, 6], [212, 42, 7], [92, 206, 7], [404, 262, 8], [232, 250, 9], [150, 330, 6],
    [50, 372, 8], [340, 356, 7]].map(([x, y, size]) => star(x, y, size, '#f0cf7a', 4, -90, 0.3)).join('');
  const wide = [[-6, 70, 'punt'], [64, 56, 'trap'], [120, 84, 'dak'], [204, 52, 'punt'], [256, 74, 'dak'], [330, 52, 'trap'],
    [382, 66, 'punt']];
  const roofs = {
    punt: (w) => `l${w / 2} -50l${w / 2} 50`,
    dak: (w) => `l14 -36h${w - 28}l14 36`,
    trap: (w) => `${`v-12h${w * 0.14}`.repeat(3)}v-10h${w * 0.16}v10${`h${w * 0.14}v12`.repeat(3)}`,
  };
  const house = (x, y, w, kind, fill) => `<path d="M${x} 650V${y}${roofs[kind](w)}V650Z" fill="${fill}"/>`;
  const pane = (x, y, lit) => `<rect x="${x}" y="${y}" width="12" height="17" rx="1.5" fill="${lit ? '#f3c969' : '#3d5273'}"/>` +
    `<path d="M${x + 6} ${y}v17M${x} ${y + 8}h12" stroke="#2a3c5a" stroke-width="1.4"/>`;
  const far = wide.map(([x, w, kind], i) => house(x - 26, 496 - (i % 3) * 10, w + 4, kind, '#3f567c')).join('') +
    house(410, 480, 60, 'dak', '#3f567c');
  const near = wide.map(([x, w, kind], i) => {
    const top = 548 + ((i * 2) % 3) * 10;
    const panes = times(2, (row) => times(Math.floor(w / 26), (k) =>
      pane(x + w / 2 + (k - (Math.floor(w / 26) - 1) / 2) * 24 - 6, top + 14 + row * 34, roll() < 0.42)).join('')).join('');
    return house(x, top, w, kind, ['#2a3c5a', '#30456a'][i % 2]) + panes;
  }).join('');
  const cat = '<path d="M-9 0Q-12 -16 -3 -22L-6 -26Q-8 -32 -6 -37L-1 -33H4L9 -37Q11 -31 8 -26Q6 -22 6 -20Q12 -8 9 0Z" ' +
    'fill="#1f2d45"/>' +
    line('M8 -1Q24 2 22 -12', '#1f2d45', 3.4);
  const chimney = (x, y, smoke) => `<rect x="${x}" y="${y}" width="13" height="30" fill="#243450"/>` +
    `<rect x="${x - 2}" y="${y}" width="17" height="5" fill="#1f2d45"/>` +
    (smoke ? tufts([[x + 7, y - 9, 5], [x + 12, y - 18, 7], [x + 8, y - 30, 9], [x + 15, y - 44, 10]], '#b9c4d6', 0.22) : '');
  return sky(upright, [0, '#1f2f52'], [0.5, '#3c5681'], [0.8, '#8c86a6'], [1, '#d9a99b']) +
    disc(322, 132, 104, '#fdf3d2', 0.06) + disc(322, 132, 76, '#fdf3d2', 0.08) +
    specks + stars + at(322, 132, 1.25, '<path d="M10 -40A42 42 0 1 0 40 14A34 34 0 0 1 10 -40Z" fill="#f6dc94"/>') +
    far + chimney(140, 500, true) + near + at(180, 522, 0.9, cat) + chimney(286, 500, true);
}

/** A fir of three tiers with snow on them, 90 high. */
const fir = (x, y, size, fill) => at(x, y, size, '<path d="M-4 0V-14H4V0Z" fill="#6d4a33"/>' +
  [[-10, 30, 36], [-32, 24, 32], [-54, 17, 30]].map(([foot, half, high]) =>
  `<path d="M0 ${foot - high}Q${half * 0.5} ${foot - high * 0.4} ${half} ${foot - 2}Q0 ${foot + 6} ${-half} ` +
  `${foot - 2}Q${-half * 0.5} ${foot - high * 0.4} 0 ${foot - high}Z" fill="${fill}"/>` +
  `<path d="M0 ${foot - high}Q${half * 0.4} ${foot - high * 0.5} ${half * 0.62} ${foot - high * 0.28}Q${half * 0.3} ` +
  `${foot - high * 0.14} ${half * 0.1} ${foot - high * 0.34}` +
  `Q${-half * 0.2} ${foot - high * 0.1} ${-half * 0.62} ${foot - high * 0.28}Q${-half * 0.4} ${foot - high * 0.5} 0 ` +
  `${foot - high}Z" fill="#fbf6fb"/>`).join(''));

function winteravond() {
  const roll = dice(83);
  const flakes = times(130, () => disc(roll() * 640, roll() * 440, 0.9 + roll() * 1.7, '#fff', n(0.4 + roll() * 0.5))).join('');
  const lit = (x, y) => `<rect x="${x}" y="${y}" width="11" height="13" rx="1" fill="#f7cf74"/>` +
    `<path d="M${x + 5.5} ${y}v13M${x} ${y + 6}h11" stroke="#a0563c" stroke-width="1.4"/>`;
  const farm = '<path d="M-50 0V-28H50V0Z" fill="#b26a52"/><path d="M-50 0V-28H-14V0Z" fill="#c47a5e"/>' +
    '<path d="M14 -78V-52H26V-78Z" fill="#8f5140"/><path d="M11 -82H29V-76Q20 -72 11 -76Z" fill="#fbf6fb"/>' +
    '<path d="M-60 -24L-34 -66Q-30 -70 -24 -70H30Q36 -70 40 -64L60 -24Q50 -20 44 -25Q34 -18 24 -25Q12 -19 0 -25Q-14 -18 -26 ' +
    '-25Q-38 -18 -46 -24Q-54 -20 -60 -24Z" fill="#fbf6fb"/>' +
    lit(-40, -18) + lit(8, -18) + lit(30, -18) + '<path d="M-24 0V-18H-10V0Z" fill="#6d4a53"/>';
  const church = '<path d="M-8 0V-46H8V0Z" fill="#8d7fa3"/><path d="M-10 -46L0 -86L10 -46Z" fill="#7a6d94"/>' +
    '<path d="M8 0V-22H40V0Z" fill="#8d7fa3"/>' +
    '<path d="M6 -20L16 -36H38L44 -20Z" fill="#ece4f0"/><path d="M-3 -28V-36A3 3 0 0 1 3 -36V-28Z" fill="#f7cf74"/>';
  const post = (x, y) => `<path d="M${x - 3} ${y}V${y - 24}H${x + 3}V${y}Z" fill="#7d5a50"/>` +
    `<path d="M${x - 5} ${y - 23}Q${x} ${y - 32} ${x + 5} ${y - 23}Z" fill="#fff"/>`;
  const fence = [[330, 412], [378, 403], [426, 398], [474, 397], [522, 400], [570, 407], [618, 417]];
  const rail = (up) => line(`M${fence.map(([x, y]) => `${x} ${y - up}`).join('L')}`, '#7d5a50', 3.4);
  return sky(lying, [0, '#6b6f9d'], [0.34, '#b08aa8'], [0.6, '#f0b9a4'], [0.72, '#fbdcb4']) +
    disc(186, 262, 70, '#ffefcf', 0.3) + disc(186, 262, 38, '#ffe9bd', 0.9) +
    land(lying, [[0, 252], [90, 226], [190, 268], [300, 232], [420, 262], [530, 222], [640, 250]], '#b7a3c0') +
    at(300, 268, 0.8, church) +
    [350, 366, 380, 396].map((x, i) => fir(x, 274 - (i % 2) * 3, 0.28 + (i % 3) * 0.05, '#8088a3')).join('') +
    land(lying, [[0, 276], [120, 296], [260, 262], [400, 276], [520, 268], [640, 284]], '#d9cfe0') +
    [20, 44, 74].map((x, i) => fir(x, 300 + (i % 2) * 4, 0.6 + (i % 2) * 0.14, '#66809a')).join('') +
    [574, 600, 626].map((x, i) => fir(x, 296, 0.6 + (i % 2) * 0.12, '#66809a')).join('') +
    tufts([[532, 212, 5], [537, 202, 7], [533, 189, 9], [542, 175, 10], [550, 160, 8]], '#fff', 0.4) + at(506, 322, 1.25, farm) +
    land(lying, [[0, 330], [140, 312], [300, 344], [440, 306], [560, 326], [640, 318]], '#ece5ef') +
    fir(112, 352, 1.2, '#4f6f7c') + fir(56, 366, 1.5, '#456672') +
    '<path d="M477 318C470 344 496 350 456 372S300 400 270 440H360C370 410 474 396 502 374S480 344 494 318Z" fill="#dcd2e2"/>' +
    land(lying, [[0, 388], [150, 362], [300, 420], [440, 400], [560, 404], [640, 396]], '#fbf7fb') + rail(17) + rail(8) +
    fence.map(([x, y]) => post(x, y)).join('') + flakes;
}

/** A hot-air balloon in two colours, its widest part about (0, 0), 100 across. */
function luchtballon(x, y, size, one, two) {
  const skin = (narrow, fill) => `<path transform="scale(${narrow} 1)" d="M-50 0A50 52 0 0 1 50 0C50 34 20 50 14 66H-14C-20 ` +
    `50 -50 34 -50 0Z" fill="${fill}"/>`;
  const scallop = times(7, (i) => `q7 9 14 0`).join('');
  return at(x, y, size, line('M-12 66L-8 84M12 66L8 84M-4 66V84M4 66V84', c.ink, 1.1, 'stroke-opacity=".7"') +
    skin(1, one) + skin(0.74, two) + skin(0.44, one) + skin(0.14, two) +
    `<path d="M22 -46.7A50 52 0 0 1 50 0C50 34 20 50 14 66H8C30 36 44 0 22 -46.7Z" fill="${darker(one)}" opacity=".22"/>` +
    `<path d="M-49 4${scallop}V-8H-49Z" fill="#fffaf0"/><path d="M-49 -3H49" stroke="${darker(one)}" stroke-width="2.2" ` +
    `stroke-dasharray="2 5"/>` +
    `<path d="M-14.5 63H14.5V68H-14.5Z" fill="${darker(one)}"/>` +
    '<path d="M-10 84H10L8 98Q0 101 -8 98Z" fill="#a8744c"/><path d="M-11.5 83H11.5V87H-11.5Z" fill="#8a5a3a"/>' +
    '<path d="M-9 91H9" stroke="#c79a6a" stroke-width="1.6"/>');
}

function ballonvaart() {
  const bank = (y, fill, size, seed) => {
    const roll = dice(seed);
    return tufts(times(9, (i) => [i * 55 + roll() * 20 - 10, y + roll() * 24, size * (0.8 + roll() * 0.5)]), fill) +
      `<rect y="${y + 8}" width="440" height="${640 - y}" fill="${fill}"/>`;
  };
  return sky(upright, [0, '#86bccb'], [0.45, '#c3dcd9'], [0.8, '#fbe3cf'], [1, '#f8cdb6']) +
    cumulus(82, 86, 0.8, '#fffdf7', 0.6) + cumulus(390, 250, 0.9, '#fffdf7', 0.6) + cumulus(176, 340, 0.7, '#fffdf7', 0.7) +
    cumulus(60, 408, 1, '#fffdf7', 0.7) +
    gulls([[96, 200, 1], [126, 212, 0.8], [70, 220, 0.7]]) +
    luchtballon(304, 128, 1.18, c.terracotta, '#f3c570') + luchtballon(96, 296, 0.66, c.plum, '#f2c3b0') +
    luchtballon(356, 380, 0.5, c.green, '#fbeedb') +
    luchtballon(206, 416, 0.3, '#5f92a8', '#f3c570') +
    bank(508, '#fbeadb', 40, 3) + bank(548, '#fdf3e8', 42, 8) + bank(594, '#fffaf4', 44, 5);
}

/** The outlines of gables, from the left eave to the right one. */
const gables = {
  trap: (w) => `${`v-10h${w * 0.12}`.repeat(3)}v-10h${w * 0.28}v10${`h${w * 0.12}v10`.repeat(3)}`,
  klok: (w) => `c${w * 0.2} -4 ${w * 0.14} -30 ${w * 0.28} -36q${w * 0.22} -16 ${w * 0.44} 0c${w * 0.14} 6 ${w * 0.08} 32 ` +
    `${w * 0.28} 36`,
  hals: (w) => `q${w * 0.22} -2 ${w * 0.24} -32v-4l${w * 0.26} -13l${w * 0.26} 13v4q${w * 0.02} 30 ${w * 0.24} 32`,
  tuit: (w) => `l${w * 0.36} -36h${w * 0.28}l${w * 0.36} 36`,
  lijst: (w) => `v-5h-3v-7h${w + 6}v7h-3v5`,
};

/** A house on the canal, its foot at y: two or three bays wide, four floors with the attic. */
function grachtenpand(x, y, width, height, wall, gable) {
  const [bays, top] = [width > 54 ? 3 : 2, y - height];
  const step = width / (bays + 0.3);
  const pane = (left, up, high) => `<rect x="${n(left - 6)}" y="${up}" width="12" height="${high}" rx="1" fill="#faf1de"/>` +
    `<rect x="${n(left - 4.2)}" y="${up + 1.8}" width="8.4" height="${high - 3.6}" fill="#7d929a"/>` +
    line(`M${n(left)} ${up + 2}v${high - 4}M${n(left - 4)} ${n(up + high * 0.45)}h8`, '#faf1de', 1.2);
  const floors = times(3, (row) => times(bays, (k) => {
    const left = x + step * (k + 0.65);
    return row === 2 && k === bays - 1 ? '' : pane(left, Math.round(top + 10 + (row * (height - 14)) / 3), 24 - row * 2);
  }).join('')).join('');
  const door = x + step * (bays - 0.35);
  const trim = gable === 'lijst' ? `<path d="M${x - 3} ${top - 5}v-7h${width + 6}v7Z" fill="#faf1de"/>`
    : line(`M${x} ${top}${gables[gable](width)}`, '#faf1de', 2.4, 'stroke-linejoin="round"') + pane(x + width / 2, top - 22, 15);
  return `<path d="M${x} ${y}V${top}${gables[gable](width)}V${y}Z" fill="${wall}"/>` + trim + floors +
    `<path d="M${n(door - 6)} ${y}V${y - 28}H${n(door + 6)}V${y}Z" fill="#5f6f68"/>` +
    `<path d="M${n(door - 6)} ${y - 28}h12v5h-12Z" fill="#faf1de"/>`;
}

/** A bicycle leaning, its wheels on y. */
const fiets = (x, y, size, frame) => at(x, y, size,
  line('M-13 -9m-9 0a9 9 0 1 0 18 0a9 9 0 1 0 -18 0M13 -9m-9 0a9 9 0 1 0 18 0a9 9 0 1 0 -18 0', c.ink, 1.6) +
  line('M-13 -9L-6 -22H8L-1 -9H-13M-1 -9L-7 -25M13 -9L7 -27', frame, 2.2) +
  line('M-10 -25H-4M7 -27L2 -29M7 -27L12 -28', c.ink, 2.4));

function gracht() {
  const quay = 292;
  const row = [[-14, 54, 128, '#c99a86', 'klok'], [41, 48, 142, '#b8ad8c', 'trap'], [90, 62, 124, '#9fb0b2', 'lijst'],
    [153, 50, 136, '#d3b48d', 'hals'], [204, 46, 118, '#b59aa6', 'tuit'], [418, 52, 134, '#cfa58e', 'trap'],
    [471, 60, 146, '#a9b59c', 'klok'], [532, 48, 122, '#d8bd93', 'hals'], [581, 66, 136, '#b79aa0', 'lijst']];
  const houses = row.map(([x, width, high, wall, gable]) => grachtenpand(x, quay, width, high, wall, gable)).join('');
  const away = [[262, 34, 70, 'tuit'], [297, 30, 80, 'klok'], [328, 32, 66, 'trap'], [361, 30, 78, 'hals'],
    [392, 30, 68, 'tuit']].map(([x, w, high, gable]) =>
    `<path d="M${x} 300V${276 - high}${gables[gable](w)}V300Z" fill="#dccbb8"/>`).join('');
  const elm = (x, size) => at(x, quay, size, '<path d="M-3 0L-2 -44H2L3 0Z" fill="#7d6654"/>' +
    tufts([[0, -62, 20], [-14, -52, 14], [14, -52, 14], [-8, -76, 13], [9, -76, 12]], '#8ea57c') +
    tufts([[-6, -70, 10], [-14, -56, 8], [4, -78, 7]], '#a3b78e'));
  const lamp = (x) => line(`M${x} ${quay}V${quay - 46}`, '#55605c', 2.4) +
    `<path d="M${x - 5} ${quay - 46}L${x - 4} ${quay - 58}H${x + 4}L${x + 5} ${quay - 46}Z" fill="#fbe2a4"/>` +
    `<path d="M${x - 6} ${quay - 58}L${x} ${quay - 64}L${x + 6} ${quay - 58}Z" fill="#55605c"/>`;
  const bridge = '<path d="M238 312V292Q334 262 430 292V312Z" fill="#b58a76"/>' +
    '<path d="M300 320V304A34 24 0 0 1 368 304V320Z" fill="#6f8f96"/><path d="M258 320V312A15 12 0 0 1 288 312V320ZM380 ' +
    '320V312A15 12 0 0 1 410 312V320Z" fill="#6f8f96"/>' +
    line('M296 304A38 28 0 0 1 372 304', '#d9bda9', 3) + line('M236 291Q334 261 432 291', '#e5d3bf', 5) +
    line('M240 270Q334 242 428 270', '#55605c', 2.2) +
    line(times(9, (i) => `M${250 + i * 21} ${n(289 - 15 * (1 - ((i - 4) / 4.6) ** 2))}v-21`).join(''), '#55605c', 1.6);
  const ripples = [[40, 346, 70], [150, 372, 90], [300, 350, 60], [420, 384, 100], [540, 350, 60], [70, 404, 110],
    [260, 416, 80], [500, 420, 90], [350, 330, 40]].map(([x, y, long]) =>
    line(`M${x} ${y}q${long / 4} -4 ${long / 2} 0t${long / 2} 0`, '#dbe7e3', 2.2, 'stroke-opacity=".55"')).join('');
  const duck = (x, y, size) => at(x, y, size, '<path d="M-14 -6Q-8 2 6 2Q14 2 13 -6Q15 -8 14 -12Q12 -17 7 -15Q4 -13 5 -9Q-2 ' +
    '-8 -8 -9L-15 -12Z" fill="#8a7562"/><path d="M5 -9Q3 -16 9 -16.5Q15 -16 14 -9Z" fill="#4f7f66"/>' +
    '<path d="M14 -12L19 -10L14 -9Z" fill="#eeb654"/>');
  const sloep = '<path d="M-58 -14Q-52 6 -36 8H40Q56 6 62 -16Q0 -6 -58 -14Z" fill="#8f6f80"/>' +
    '<path d="M-58 -15Q0 -7 62 -17L61 -12Q0 -2 -57 -10Z" fill="#faf1de"/>' +
    '<path d="M-20 -10H-2V-6H-20ZM14 -11H32V-7H14Z" fill="#c79a6a"/>';
  return sky(lying, [0, '#c9dcd9'], [0.3, '#f3e8d2'], [0.62, '#f8dfc4']) + cumulus(110, 74, 0.9, '#fffaf0', 0.7) +
    cumulus(520, 62, 1.1, '#fffaf0', 0.7) + cumulus(350, 110, 0.6, '#fffaf0', 0.7) +
    away + houses + elm(66, 1.05) + elm(182, 0.95) + elm(452, 1) + elm(574, 1.08) + lamp(124) + lamp(520) +
    '<rect y="312" width="640" height="128" fill="#8fb0b3"/>' +
    `<g transform="translate(0 616) scale(1 -1)" opacity=".2">${away}${houses}</g>` +
    '<path d="M0 290H240V316H0ZM428 290H640V316H428Z" fill="#a8917f"/><path d="M0 290H240V295H0ZM428 290H640V295H428Z" ' +
    'fill="#d9c4ae"/>' +
    bridge + fiets(90, 291, 0.8, c.terracotta) + fiets(342, 278, 0.72, c.green) +
    '<rect y="316" width="640" height="4" fill="#6f8f96" opacity=".5"/>' +
    ripples + at(556, 338, 1, sloep) + duck(176, 350, 0.9) + duck(214, 358, 0.7);
}

/** A motif in cross-stitch: rows of a drawing, x where a stitch is. */
const stitched = (rows, size, fill) => rows.flatMap((row, y) => [...row].map((mark, x) => mark !== 'x' ? '' :
  line(`M${n((x - row.length / 2) * size + 0.8)} ${n((y - rows.length / 2) * size + 0.8)}l${size - 1.6} ${size - 1.6}m0 ` +
    `${1.6 - size}l${1.6 - size} ${size - 1.6}`, fill, 1.3))).join('');

function ruitjes() {
  const side = 44;
  const bands = times(5, (i) => `<rect x="${i * side * 2 + 22}" width="${side}" height="640" fill="#d9694a" ` +
    `opacity=".3"/>`).join('') +
    times(8, (i) => `<rect y="${i * side * 2 + 12}" width="440" height="${side}" fill="#d9694a" opacity=".3"/>`).join('');
  const twill = '<pattern id="keper" width="4" height="4" patternUnits="userSpaceOnUse">' +
    '<path d="M-1 1L1 -1M0 4L4 0M3 5L5 3" stroke="#fffaf2" stroke-width="1.1" opacity=".32"/></pattern>';
  const motifs = [['.xx.xx.', 'xxxxxxx', 'xxxxxxx', '.xxxxx.', '..xxx..', '...x...'],
    ['...x...', '..xxx..', '.x.x.x.', 'xxx.xxx', '.x.x.x.', '..xxx..', '...x...']];
  const stitch = (x, y, kind) => at(x, y, 1, stitched(motifs[kind], 3.6, ['#b8533a', '#5f8a70'][kind]));
  const stitches = times(7, (row) => times(4, (k) => (row + k * 2) % 3 ? '' :
    stitch((k + 1) * side * 2, (row + 1) * side * 2 - 10, (row + k) % 2)).join('')).join('');
  return sheet(440, 640, '#fffaf2') + bands + twill + sheet(440, 640, 'url(#keper)') + stitches;
}

/** The washing, each thing hung by its upper edge at (0, 0). */
const wasgoed = {
  laken: (fill) => `<path d="M-46 0Q0 7 46 0L48 84Q30 90 16 85T-16 87T-48 84Z" fill="${fill}"/>` +
    `<path d="M20 4L46 0L48 84Q34 89 24 87Z" fill="${darker(fill)}" opacity=".14"/>` +
    `<path d="M-47.5 66Q0 76 47.5 66V73Q0 83 -47.5 73Z" fill="${c.blue}" opacity=".75"/>` +
    `<path d="M-47.5 56Q0 66 47.5 56V59Q0 69 -47.5 59Z" fill="${c.blue}" opacity=".75"/>`,
  trui: (fill) => `<path d="M-13 0Q0 9 13 0L31 11L24 29L16 24V58Q0 62 -16 58V24L-24 29L-31 11Z" fill="${fill}"/>` +
    `<path d="M-16 32H16V38H-16ZM-16 44H16V50H-16Z" fill="#fffaf0" opacity=".85"/>`,
  jurk: (fill) => `<path d="M-10 0Q0 9 10 0L16 7L11 24L28 66Q0 74 -28 66L-11 24L-16 7Z" fill="${fill}"/>` +
    `<path d="M-11.5 22H11.5L12.5 28H-12.5Z" fill="#fffaf0"/>` +
    [[-10, 42], [6, 38], [-2, 56], [14, 54], [-17, 58]].map(([x, y]) => disc(x, y, 2.4, '#fffaf0')).join(''),
  sok: (fill) => `<path d="M-6 0H6V22Q7 28 13 30L18 32Q22 41 13 42H0Q-7 42 -7 34Z" fill="${fill}"/>` +
    `<path d="M-6 0H6V6H-6Z" fill="#fffaf0" opacity=".8"/>`,
  romper: (fill) => `<path d="M-11 0Q0 9 11 0L24 9L19 20L13 17V34Q13 42 5 48H-5Q-13 42 -13 34V17L-19 20L-24 9Z" ` +
    `fill="${fill}"/>` + heart(0, 25, 0.5, c.terracotta),
  doek: (fill) => `<path d="M-22 0Q0 5 22 0L23 52Q0 57 -23 52Z" fill="#f7d9c8"/>` +
    `<path d="M-14 1.5Q-12 2 -9 2.3V54Q-12 53.7 -14 53.5ZM9 2.3Q12 2 14 1.5V53.5Q12 53.7 9 54ZM-22 12Q0 17 22 12V17Q0 22 -22 ` +
    `17ZM-22 36Q0 41 22 36V41Q0 46 -22 41Z" fill="${fill}" opacity=".75"/>`,
};

function waslijn() {
  const roll = dice(97);
  const cord = (x) => 118 + 22 * (1 - ((x - 322) / 240) ** 2);
  const hung = [[118, 'doek', c.terracotta, 16], [176, 'trui', c.blue, 12], [228, 'sok', c.ochre, 0],
    [254, 'sok', c.ochre, 0], [332, 'laken', '#d3e3e6', 40], [416, 'romper', '#f7dfae', 10],
    [474, 'jurk', c.plum, 9], [526, 'sok', c.sage, 0]];
  const peg = (x) => `<rect x="${n(x - 1.8)}" y="${n(cord(x) - 6)}" width="3.6" height="12" rx="1.4" fill="#c08a4e"/>`;
  const wash = hung.map(([x, what, fill, apart]) => at(x, cord(x), 1, wasgoed[what](fill)) + peg(x - apart) +
    (apart ? peg(x + apart) : '')).join('');
  const pole = (x) => `<path d="M${x - 4} 330V96H${x + 4}V330Z" fill="#a8744c"/>` +
    `<path d="M${x} 330V96H${x + 4}V330Z" fill="#8f603e"/><rect x="${x - 14}" y="104" width="28" height="7" rx="3" ` +
    `fill="#a8744c"/>`;
  const bush = (y, size, fill, count) => tufts(times(count, (i) => [(i * 660) / (count - 1) - 10, y + roll() * 10 - 5,
    size * (0.8 + roll() * 0.4)]), fill) + `<rect y="${y}" width="640" height="${312 - y}" fill="${fill}"/>`;
  const blooms = times(30, (i) => flower(Math.round(i * 22 + roll() * 12), Math.round(254 + (i % 3) * 16 + roll() * 8),
    7 + roll() * 4, pick(['#f2c3b0', '#fffaf0', '#e79a8f'], roll()), 5)).join('');
  const blades = times(60, () => line(`M${n(roll() * 640)} ${n(326 + roll() * 104)}q1 -6 4 -9`, '#8fb07a', 1.6)).join('');
  const daisies = times(26, () => flower(Math.round(roll() * 640), Math.round(340 + roll() * 92), 6, '#fffdf7', 7)).join('');
  const basket = '<path d="M-40 -22Q-30 -42 -14 -34Q-4 -48 12 -36Q28 -42 40 -22Z" fill="#fffaf0"/>' +
    '<path d="M-12 -34Q-4 -46 10 -36L4 -20H-16Z" fill="#f2c3b0"/><path d="M-44 -24H44L36 10Q0 16 -36 10Z" fill="#cf9f66"/>' +
    line('M-41 -12Q0 -6 41 -12M-39 -2Q0 5 39 -2', '#a8744c', 2) +
    line('M-26 -23L-22 11M-9 -22V13M9 -22V13M26 -23L22 11', '#a8744c', 1.6) +
    '<rect x="-47" y="-28" width="94" height="8" rx="4" fill="#b98652"/>';
  const gieter = '<path d="M-20 -30H20L24 14Q0 20 -24 14Z" fill="#6fa3b8"/>' +
    '<path d="M6 -30H20L24 14Q16 18 8 17Z" fill="#5a8ca2"/>' +
    line('M22 -2L44 -26', '#5a8ca2', 6) + '<path d="M36 -28L48 -36L54 -22Z" fill="#6fa3b8"/>' +
    line('M-18 -28C-46 -28 -46 6 -23 6', '#5a8ca2', 4) + line('M-16 -31Q0 -52 16 -31', '#5a8ca2', 4);
  return sky(lying, [0, '#fdf0d0'], [0.6, '#fffaf0']) + disc(560, 60, 50, '#fbdf9c', 0.4) + disc(560, 60, 30, '#fbd98a') +
    cumulus(90, 70, 0.8, '#fffdf7', 1) + cumulus(300, 58, 1, '#fffdf7', 1) +
    bush(250, 30, '#a9c3a0', 16) + bush(268, 28, '#86ab84', 18) + blooms +
    '<rect y="306" width="640" height="134" fill="#b7cf98"/>' +
    land(lying, [[0, 330], [160, 318], [340, 336], [520, 322], [640, 332]], '#a9c489') + blades + daisies +
    '<path d="M66 332Q82 324 98 332Q82 338 66 332ZM546 332Q562 324 578 332Q562 338 546 332Z" fill="#8fb07a"/>' +
    at(470, 384, 1, gieter) + pole(82) + pole(562) +
    line(`M82 ${n(cord(82))}Q322 ${n(cord(322) * 2 - cord(82))} 562 ${n(cord(562))}`, c.ink, 1.6) + wash +
    at(214, 392, 0.95, basket);
}

function hartjes() {
  const stripes = times(6, (i) => `<rect x="${i * 88 - 22}" width="44" height="640" fill="#f3dbe0"/>` +
    line(`M${i * 88 + 26} 0V640M${i * 88 - 26} 0V640`, '#d9b3c4', 1.2)).join('');
  const tones = ['#c98ba0', '#dda08f', '#b08fae'];
  const columns = times(5, (i) => times(9, (k) => heart(44 + i * 88, 44 + k * 80 - (i % 2) * 40, 0.72, tones[(i + k) % 3],
    ((k + i) % 3) * 7 - 7)).join('')).join('');
  const dots = times(6, (i) => times(33, (k) => disc(i * 88, k * 20 + 4, 1.7, '#fffaf5')).join('')).join('');
  return sheet(440, 640, '#fdf3ee') + stripes + dots + columns;
}

/** What stands on the tiles, in two tones of blue, about (0, 0) and 60 across. */
const tegelbeelden = (deep, pale) => ({
  tulp: line('M0 28Q-2 10 0 -4', deep, 2.2) + leaf(-1, 24, 26, -118, pale) + leaf(0, 24, 26, -62, pale) +
    `<path d="M-11 -26Q-6 -22 -5 -18Q0 -32 5 -18Q6 -22 11 -26Q17 -4 0 -2Q-17 -4 -11 -26Z" fill="${deep}"/>`,
  molen: `<path d="M-8 24L-5 -6Q0 -12 5 -6L8 24Z" fill="${pale}"/>` + line('M-20 -24L20 16M20 -24L-20 16', deep, 2) +
    [0, 90, 180, 270].map((turn) => `<g transform="translate(0 -4) rotate(${turn + 45})">` +
    `<rect x="1" y="-28" width="7" height="19" fill="${deep}"/></g>`).join('') + line('M-24 25Q0 20 24 25', deep, 2.2),
  boot: `<path d="M-22 10H22Q18 20 12 20H-12Q-18 20 -22 10Z" fill="${deep}"/>` + line('M0 10V-26', deep, 2) +
    `<path d="M3 -24Q20 -6 20 6H3Z" fill="${pale}"/><path d="M-3 -18Q-14 -4 -15 6H-3Z" fill="${pale}"/>` +
    line('M-26 26q6 -5 12 0t12 0t12 0t12 0', deep, 1.8),
  vogel: `<path d="M-24 6Q-8 12 -2 0Q4 -14 16 -12L23 -9L17 -5Q18 12 0 14Q-14 15 -24 6Z" fill="${deep}"/>` +
    `<path d="M-8 6Q2 -8 9 0Q6 10 -8 6Z" fill="${pale}"/>` +
    line('M0 14L-2 22M6 13L6 22M-18 23Q2 18 22 23', deep, 1.8) + disc(14, -8, 1.3, '#fdfaf2'),
  bloem: times(6, (i) => `<ellipse cx="0" cy="-15" rx="7" ry="11" fill="${i % 2 ? deep : pale}" ` +
    `transform="rotate(${i * 60})"/>`).join('') + disc(0, 0, 6.5, '#fdfaf2') + disc(0, 0, 3.8, deep),
});

function tegels() {
  const roll = dice(113);
  const [side, deep, pale] = [110, '#7fa3c0', '#aac4d6'];
  const beelden = Object.values(tegelbeelden(deep, pale));
  const corner = `<path d="M3 3H23Q20 9 14 10Q13 15 10 14Q9 20 3 23Z" fill="${deep}"/>` + disc(19, 19, 2.4, deep) +
    line('M5 30Q10 27 12 21M30 5Q27 10 21 12', pale, 2);
  const corners = times(4, (i) => `<g transform="rotate(${i * 90} 55 55)">${corner}</g>`).join('');
  const ring = `<circle cx="55" cy="55" r="41" fill="none" stroke="${pale}" stroke-width="1.4"/>`;
  const tile = (x, y, beeld) => `<g transform="translate(${x} ${y})"><rect x="1.2" y="1.2" width="107.6" height="107.6" ` +
    `rx="2" fill="${pick(['#fdfaf2', '#fbf7ec', '#f8f6ee'], roll())}"/>` +
    corners + (beeld ? ring + at(55, 55, 1, beeld) : '') + '</g>';
  const rows = times(3, (row) => times(6, (k) => {
    const whole = row % 2 ? [2, 4] : [1, 3];
    return tile(k * side - (row % 2 ? 90 : 35), row * side, whole.includes(k) ? beelden[(row * 2 + (k > 2)) % 5] : '');
  }).join('')).join('');
  return sheet(640, 440, '#dcd8cc') + at(0, 0, 4 / 3, rows);
}

function kraft() {
  const roll = dice(127);
  const fibres = times(260, () => line(`M${n(roll() * 440)} ${n(roll() * 640)}q${n(roll() * 10 - 5)} ${n(roll() * 6 - 3)} ` +
    `${n(roll() * 18 - 9)} ${n(roll() * 14 - 7)}`,
    pick(['#c29a69', '#e6c99f', '#b98f5f'], roll()), 0.9, 'stroke-opacity=".5"')).join('');
  const white = '#fdf3e0';
  const twig = (bend, count, long) => line(`M0 0Q${bend} ${-long * 0.5} ${bend * 0.4} ${-long}`, white, 1.6) +
    times(count, (i) => {
      const share = 0.32 + (0.68 * (i + 1)) / count;
      const [x, y] = [2 * (1 - share) * share * bend + share * share * bend * 0.4, -long * share];
      return [-1, 1].map((side) => `<ellipse cx="0" cy="-9" rx="3.8" ry="9" fill="${white}" transform="translate(${n(x)} ` +
        `${n(y)}) rotate(${side * 44})"/>`).join('');
    }).join('');
  const patch = heart(0, 0, 2.5, c.terracotta) + `<path transform="translate(0 -2) scale(2.02)" d="${heartPath}" fill="none" ` +
    `stroke="${white}" stroke-width=".9" stroke-dasharray="2.6 1.9" stroke-linecap="round"/>`;
  return sheet(440, 640, '#d6b384') + fibres +
    `<rect x="24" y="24" width="392" height="592" rx="16" fill="none" stroke="${white}" stroke-width="2.6" ` +
    `stroke-dasharray="11 7" stroke-linecap="round"/>` +
    at(336, 566, 1, twig(16, 5, 112), -62) + at(336, 566, 1, twig(6, 5, 122), -22) + at(336, 566, 1, twig(-14, 5, 108), 20) +
    at(336, 562, 1.1, patch, -12);
}

function terrazzo() {
  const roll = dice(139);
  const tones = [c.terracotta, '#e6b45a', c.sage, c.blue, c.plum, c.blush, '#d9cbb2', '#7c9c88'];
  const laid = [];
  times(1400, () => {
    const chip = { x: roll() * 660 - 10, y: roll() * 460 - 10, r: 5 + roll() ** 3 * 24 };
    if (laid.every(({ x, y, r }) => Math.hypot(chip.x - x, chip.y - y) > chip.r + r + 5)) {
      laid.push(chip);
    }
  });
  const chips = laid.map(({ x, y, r }, i) => {
    const corners = 4 + Math.floor(roll() * 3);
    const spin = roll() * 6.3;
    const points = times(corners, (k) => {
      const [turn, far] = [spin + ((k + roll() * 0.5 - 0.25) * 2 * Math.PI) / corners, r * (0.7 + roll() * 0.3)];
      return `${n(x + far * Math.cos(turn))} ${n(y + far * Math.sin(turn))}`;
    });
    const fill = tones[i % tones.length];
    return `<path d="M${points.join('L')}Z" fill="${fill}" stroke="${fill}" stroke-width="${n(2 + r * 0.14)}" ` +
      `stroke-linejoin="round"/>`;
  }).join('');
  return sheet(640, 440, c.paper) + `<g opacity=".62">${chips}</g>`;
}

/** In the order of their numbers: size and drawing. */
export const achtergronden = [
  [upright, heuvels()], [lying, zee()], [upright, rijstpapier()], [lying, polder()],
  [upright, herfstbos()], [lying, tulpenveld()], [upright, sterrennacht()], [lying, winteravond()],
  [upright, ballonvaart()], [lying, gracht()], [upright, ruitjes()], [lying, waslijn()],
  [upright, hartjes()], [lying, tegels()], [upright, kraft()], [lying, terrazzo()],
];
