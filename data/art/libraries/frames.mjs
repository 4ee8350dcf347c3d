// The frames: a border around an empty field for the user's own words.
import { balloon, bunting, colours as c, confetti, dice, flower, heart, leaf, sprig, star, times, warm, sheet, berries,
  upright, lying } from './tekenen.mjs';
import * as m from './motieven.mjs';

const { place, mirrored, shape, line, dashed, dot, oval, block, ring, cream, gold, goldDark, red, orange } = m;

/** A bouquet that fills a corner at (0, 0) and runs out along both sides. */
const bouquet = () => sprig([[60, 60], [150, 26], [252, 40]], 12, 34, c.sage) + sprig([[60, 60], [24, 170], [40, 300]], 13, 34, c.sage) +
  sprig([[50, 70], [120, 90], [168, 84]], 7, 30, c.green) + sprig([[70, 50], [94, 130], [86, 196]], 8, 30, c.green) +
  sprig([[40, 40], [120, 6], [206, 12]], 8, 26, '#c2b27c') + sprig([[40, 40], [4, 120], [12, 218]], 8, 26, '#c2b27c') +
  berries(158, 54, c.terracotta) + berries(52, 184, c.terracotta) + berries(206, 26, c.plum) + berries(22, 246, c.plum) +
  flower(62, 62, 50, c.terracotta, 9) + flower(126, 42, 32, c.blush, 7) + flower(40, 134, 34, c.ochre, 8, c.terracotta) +
  flower(104, 100, 24, c.plum, 6) + flower(168, 28, 18, c.ochre, 6, c.terracotta) + flower(24, 186, 19, c.blush, 6);

function bloemen() {
  const corner = bouquet();
  return sheet(440, 640, c.paper) +
    `<rect x="20" y="20" width="400" height="600" rx="10" fill="#fffdf7" stroke="${c.ochre}" stroke-width="3"/>` +
    `<rect x="28" y="28" width="384" height="584" rx="6" fill="none" stroke="${c.terracotta}" stroke-opacity=".55"/>` +
    corner + `<g transform="rotate(180 220 320)">${corner}</g>`;
}

function feest() {
  const free = (x, y) => x > 46 && x < 594 && y > 54 && y < 396;
  return sheet(640, 440, '#fbead0') + times(16, (i) => `<path d="M320 220L${320 + 700 * Math.cos(i * Math.PI / 8)} ${220 + 700 * Math.sin(i * Math.PI / 8)}L${320 + 700 * Math.cos((i + 0.5) * Math.PI / 8)} ${220 + 700 * Math.sin((i + 0.5) * Math.PI / 8)}Z" fill="#f8ddb4"/>`).join('') +
    `<rect x="56" y="64" width="528" height="322" rx="26" fill="#fffdf7" stroke="${c.terracotta}" stroke-width="4"/><rect x="65" y="73" width="510" height="304" rx="19" fill="none" stroke="${c.ochre}" stroke-width="1.6" stroke-dasharray="6 5"/>` +
    confetti(7, 420, 640, 440, warm, free) + bunting(-10, 14, 330, 14, 22, 9, warm) + bunting(310, 14, 650, 14, 22, 9, [...warm].reverse()) +
    balloon(44, 268, 36, c.terracotta, 60, 432) + balloon(96, 320, 30, c.ochre, 66, 436) + balloon(22, 342, 28, c.blue, 56, 440) +
    balloon(598, 262, 36, c.plum, 580, 432) + balloon(544, 322, 30, c.sage, 574, 436) + balloon(620, 340, 28, c.ochre, 584, 440);
}

function winter() {
  const roll = dice(11);
  const flakes = times(700, () => `<circle cx="${(roll() * 440).toFixed(1)}" cy="${(roll() * 640).toFixed(1)}" r="${(0.8 + roll() * 2).toFixed(1)}" fill="#fff" opacity="${(0.3 + roll() * 0.5).toFixed(2)}"/>`).join('');
  const corner = sprig([[50, 50], [130, 24], [216, 30]], 13, 30, '#6f9a78') + sprig([[50, 50], [24, 130], [30, 226]], 13, 30, '#6f9a78') +
    sprig([[56, 56], [100, 84], [140, 76]], 7, 26, '#8db491') + sprig([[56, 56], [84, 100], [76, 146]], 7, 26, '#8db491') +
    [[0, -13], [12, 7], [-12, 7]].map(([x, y]) => `<circle cx="${54 + x}" cy="${54 + y}" r="12" fill="#c8402f" stroke="#8c2419"/><circle cx="${50 + x}" cy="${50 + y}" r="3.4" fill="#fff" opacity=".7"/>`).join('') +
    berries(138, 36, '#c8402f') + berries(34, 140, '#c8402f') + star(104, 52, 13, '#f0cf7a') + star(50, 108, 13, '#f0cf7a');
  return sheet(440, 640, '#2f5a4a') + flakes +
    '<rect x="34" y="34" width="372" height="572" rx="14" fill="#fffaf0" stroke="#f0cf7a" stroke-width="4"/><rect x="43" y="43" width="354" height="554" rx="9" fill="none" stroke="#c8402f" stroke-opacity=".6"/>' +
    corner + `<g transform="translate(440 640) rotate(180)">${corner}</g>`;
}

/** A point on a line that sags between its ends, for what hangs from it. */
const sagging = (x0, x1, y, sag) => (t) => [x0 + (x1 - x0) * t, y + sag * 4 * t * (1 - t)].map(Math.round);
/** Places strewn evenly, yet in no order. */
const strewn = (count, width, height) => times(count, (i) =>
  [((i + 1) * 0.754878) % 1, ((i + 1) * 0.56984) % 1, ((i + 1) * 0.438579) % 1])
  .map(([x, y, more]) => [Math.round(x * width), Math.round(y * height), more]);
const cord = (x0, x1, y, sag, stroke = c.ink) => line(`M${x0} ${y}Q${(x0 + x1) / 2} ${y + sag * 2} ${x1} ${y}`, stroke, 1.8);

function heelal() {
  const dust = strewn(260, 640, 440).map(([x, y, more]) => dot(x, y, (0.7 + more * 1.2).toFixed(1), '#fff', 0.6)).join('');
  const field = 'M104 50C240 38 420 40 540 48C590 52 600 80 600 130C606 220 604 270 598 330C594 380 570 394 520 394' +
    'C400 402 240 402 110 394C62 392 44 370 42 320C36 230 36 190 42 110C46 66 64 52 104 50Z';
  const moon = dot(0, 0, 46, '#f3e3b8') + shape('M22 -40A46 46 0 1 1 -36 29A52 52 0 0 0 22 -40Z', '#d9bf83', 0.55) +
    [[-16, -16, 8], [10, -22, 5], [4, 2, 6], [-24, 8, 4]].map(([x, y, r]) => dot(x, y, r, '#d9bf83')).join('');
  const stars = [[150, 24, 8], [404, 20, 6], [460, 28, 8], [22, 210, 8], [621, 196, 9], [300, 420, 6], [24, 136, 5]]
    .map(([x, y, r]) => star(x, y, r, gold, 5, -80, 0.45)).join('');
  return sheet(640, 440, '#4d4373') + dust + shape(field, cream) + line(field, c.ochre, 4) +
    place(13.8, 9.5, dashed(field, c.plum, 1.4, '1 7', 0.7), 0.957) +
    place(66, 62, m.planet(32, c.terracotta, c.ochre)) + place(584, 54, m.planet(22, c.blue)) +
    place(538, 24, m.planet(8, c.sage)) + place(330, 50, m.saucer(), 0.92, -5) +
    place(40, 404, moon, 0.9) + dashed('M98 416C250 438 460 436 556 410', '#fff', 2, '2 9', 0.6) +
    place(584, 362, m.rocket(), 0.88, 30) + stars +
    line('M206 14L246 26', '#fff', 2, 0.5) + star(254, 28, 7, '#fff3cf', 5, -70, 0.45);
}

function geboorte() {
  const at = sagging(-10, 450, 30, 22);
  const hung = [[0.1, m.sock(c.ochre)], [0.185, m.sock(c.ochre)], [0.36, m.romper(c.blue)], [0.53, m.bib(c.terracotta)],
    [0.69, m.trousers(c.sage)], [0.87, m.cap(c.plum)]];
  const bloom = (x, y, fill) => line(`M${x} ${y}v18`, c.green, 1.6) + leaf(x, y + 17, 12, -50, c.green) +
    leaf(x, y + 17, 12, -130, c.green) + flower(x, y, 8.5, fill, 6);
  const meadow = [[164, 600, c.terracotta], [190, 608, cream], [236, 596, c.plum], [262, 606, cream], [408, 604, c.terracotta]]
    .map((b) => bloom(...b)).join('');
  const reeds = [[40, 560, -6], [54, 536, 2], [70, 566, 9]].map(([x, y, lean]) =>
    line(`M${x - lean} 640Q${x - lean} ${y + 30} ${x} ${y}`, c.green, 2.4) +
    oval(x, y, 5, 15, '#9a6b48')).join('');
  return sheet(440, 640, '#fcebe3') + m.cloud(62, 196, 0.7, '#fff', 0.6) + m.cloud(398, 352, 0.6, '#fff', 0.6) +
    cord(-10, 450, 30, 22, '#9a7d6a') +
    hung.map(([t, thing]) => place(...at(t), thing)).join('') +
    shape('M0 566C80 528 170 540 250 562S390 560 440 536V640H0Z', '#d7dfc4') +
    shape('M0 600C110 570 180 590 280 584S400 580 440 586V640H0Z', '#b5c9a2') +
    place(336, 606, m.stork(c.blue)) + oval(40, 630, 96, 20, '#a9cbd3') + line('M10 626H44M64 634H92', '#fff', 1.6, 0.7) +
    reeds + line('M84 640Q80 600 96 574M28 640Q30 610 18 586', c.green, 2.4) +
    meadow;
}

function bruiloft() {
  const arch = (d) => `M${40 + d} ${604 - d}V210A${180 - d} ${180 - d} 0 0 1 ${400 - d} 210V${604 - d}Z`;
  const green = '#9db394';
  const rim = (d) => `M${190 - d / 2} ${604 - d}H${40 + d}V210A${180 - d} ${180 - d} 0 0 1 ${400 - d} ` +
    `210V${604 - d}H${250 + d / 2}`;
  const half = m.eucalyptus([[56, 592], [110, 614], [166, 602]], 8, 24, green) +
    m.eucalyptus([[52, 592], [32, 520], [42, 424]], 11, 23, '#b4c2a4') +
    m.eucalyptus([[214, 31], [128, 40], [66, 122]], 11, 21, green);
  return sheet(440, 640, '#e7ebdf') + shape(arch(0), cream) + line(rim(0), '#cfae62', 3) + line(rim(9), '#cfae62', 1.2, 0.7) +
    half + mirrored(440, 0, half) + m.rose(56, 590, 23, c.blush) + m.rose(92, 604, 15, '#f3dcc0') +
    m.rose(384, 590, 23, c.blush) + m.rose(348, 604, 15, '#f3dcc0') +
    m.rose(220, 32, 17, c.blush) + place(220, 600, m.rings(), 1.15);
}

function sinterklaas() {
  const diamond = (x, y) => place(x, y, shape('M0 -6L5 0L0 6L-5 0Z', gold));
  const diamonds = times(39, (i) => [10, 430].map((y) => diamond((10 + i * 16.316).toFixed(1), y)).join('')).join('') +
    times(25, (i) => [10, 630].map((x) => diamond(x, Number((26.15 + i * 16.15).toFixed(1)))).join('')).join('');
  const bricks = times(13, (i) => line(`M${44 + i * 26} 394v9M${31 + i * 26} 405v9`, '#a98a68', 1.2)).join('');
  const wave = (y, fill) => shape(`M356 ${y}${times(12, () => 'q11 -7 22 0').join('')}V420H356Z`, fill);
  const nuts = [[146, 385, 6], [159, 387, 4.5], [236, 386, 5.5], [276, 386, 5], [330, 386, 6], [344, 387, 4.5]];
  return sheet(640, 440, '#a5342b') + diamonds + block(20, 20, 600, 400, '#fdf3df', 4) +
    m.skyline(376, 600, 390, 0.72, '#f5e5c9') + wave(384, '#8fb9c6') + place(496, 397, m.steamer(), 0.76) + wave(396, c.blue) +
    wave(408, '#5b8ea4') +
    block(20, 388, 340, 32, '#cdb08a') + block(20, 388, 344, 6, '#e3cba6', 2) + bricks + ring(22, 22, 596, 396, 3, gold, 3) +
    place(124, 389, m.staff(), 0.76, 8) + place(66, 389, m.gift(66, 44, c.blue, c.ochre)) +
    place(116, 389, m.gift(36, 28, c.sage, red)) + place(66, 344, m.mitre(), 0.68) +
    place(194, 389, m.shoe(), 0.74) + place(290, 389, m.horse(), 0.82) + nuts.map((nut) => m.spiceNut(...nut)).join('');
}

function kerst() {
  const roll = dice(73);
  const snow = strewn(110, 640, 440).map(([x, y, more]) => dot(x, y, (1 + more * 1.6).toFixed(1), '#fff', 0.9)).join('');
  const twig = (x, y, length, turn, fill = c.green) => place(x, y, m.firTwig(length, fill, 13), 1, turn);
  // From the middle outwards, so that the twigs point down and away from the bow.
  const swag = times(8, (i) => {
    const [x, y] = sagging(310, -60, 10, 24)((i + 0.3) / 8);
    return twig(x, y, 66, 205 + roll() * 10, '#5d8f74') + twig(x, y, 58, 138 + roll() * 16) + twig(x, y, 70, 172 + roll() * 12);
  }).reverse().join('');
  const hung = [[38, 54, 14, c.blue], [90, 80, 20, red], [138, 52, 14, c.ochre], [190, 66, 16, c.blue], [240, 40, 13, red],
    [284, 30, 11, c.ochre]];
  const ornaments = [(r) => line(`M${-r * 0.9} -2Q0 5 ${r * 0.9} -2`, '#fff', 2.6, 0.8), (r) => star(0, 0, r * 0.55, '#fff3cf'),
    () => ''];
  const baubles = hung.map(([left, thread, r, fill], i) => [left, 640 - left].map((x) =>
    place(x, 14, m.bauble(thread, r, fill, ornaments[i % 3](r)))).join('')).join('');
  const half = swag + berries(150, 24, red) + berries(40, 18, red);
  const corner = [-6, -38, -88, -140, -172].map((turn) => twig(70, 414, 66, turn)).join('') +
    place(54, 414, m.candle(80, red)) + place(88, 416, m.candle(52, c.ochre));
  const ground = shape('M0 414C50 404 120 408 190 420S420 428 470 420S590 404 640 414V440H0Z', '#fff') +
    shape('M0 430C120 420 200 436 320 434S520 420 640 430V440H0Z', '#d3e0e2');
  const bow = shape('M0 0C-20 -22 -44 -14 -38 4C-34 18 -14 12 0 0C20 -22 44 -14 38 4C34 18 14 12 0 0Z', red) +
    shape('M-4 2L-22 40L-12 36L-8 46L2 6ZM4 2L22 40L12 36L8 46L-2 6Z', '#a5342b') + oval(0, 0, 8, 7, '#a5342b');
  return sheet(640, 440, '#e6efec') + snow + corner + mirrored(640, 0, corner) + ground + place(70, 414, m.holly(), 0.9) +
    place(570, 414, m.holly(), 0.9) +
    baubles + half + mirrored(640, 0, half) + place(320, 24, bow);
}

function oudEnNieuw() {
  const stars = strewn(90, 440, 560).map(([x, y, more]) => dot(x, y, (0.6 + more).toFixed(1), '#fff', 0.6)).join('');
  const label = (d) => {
    const [l, t, r, b, q] = [40 + d, 52 + d, 400 - d, 552 - d, 34];
    return `M${l + q} ${t}H${r - q}A${q} ${q} 0 0 0 ${r} ${t + q}V${b - q}A${q} ${q} 0 0 0 ${r - q} ${b}` +
      `H${l + q}A${q} ${q} 0 0 0 ${l} ${b - q}V${t + q}A${q} ${q} 0 0 0 ${l + q} ${t}Z`;
  };
  const bursts = [[44, 46, 62, c.ochre], [398, 62, 66, c.terracotta], [226, 22, 44, c.blush], [24, 540, 44, c.blue],
    [420, 520, 42, c.ochre], [132, 34, 26, c.sage], [318, 24, 28, c.blue], [14, 300, 30, c.terracotta], [428, 290, 30, c.plum]];
  return sheet(440, 640, '#2c3d5e') + stars + bursts.map(([x, y, r, fill]) => place(x, y, m.burst(r, fill))).join('') +
    m.skyline(-14, 450, 640, 1, '#1d2940', gold) + shape(label(0), '#fffaf0') + line(label(0), gold, 4) +
    line(label(9), goldDark, 1.3, 0.8) +
    oval(220, 621, 92, 9, goldDark) + oval(220, 618, 92, 9, gold) + place(222, 621, m.bottle(), 0.84, 3) +
    place(166, 619, m.flute(), 0.84, -5) + place(276, 619, m.flute(), 0.84, 6);
}

function pasen() {
  const roll = dice(37);
  const catkin = (x, y, turn) => place(x, y, oval(0, -7, 4.6, 8, '#d9d6cc') + oval(-1, -8, 2.4, 5, '#efece4') +
    shape('M-4 -2Q0 3 4 -2L2 2H-2Z', '#8a6242'), 1, turn);
  const branch = line('M-6 26C70 14 150 44 236 34S380 22 446 40M120 32C150 16 170 14 196 6M300 30C330 44 350 52 380 54',
    '#8a6242', 4) +
    [[24, 18, -20], [60, 18, 24], [92, 24, -18], [156, 14, 8], [196, 4, 40], [200, 34, -24], [262, 30, 20], [330, 22, -14],
    [384, 52, 96], [408, 28, 18], [352, 24, 20], [130, 34, 160]].map((k) => catkin(...k)).join('');
  const hanging = [[50, 25, 36, c.blue, 0, c.ochre], [112, 30, 22, c.blush, 1, c.terracotta],
    [226, 36, 26, c.ochre, 2, c.terracotta], [318, 30, 30, c.sage, 3, c.ochre], [394, 33, 44, c.plum, 0, c.blush]];
  const eggs = [[70, 606, -14, c.terracotta, 3, c.ochre], [112, 614, 10, c.blue, 2, c.ochre],
    [152, 612, -6, c.ochre, 1, c.terracotta], [300, 614, 12, c.plum, 0, c.blush], [376, 610, -10, c.blush, 2, c.terracotta]];
  const daffodils = [[30, 610, 96, -8], [410, 612, 104, 8], [336, 612, 78, -14], [382, 608, 58, 14], [58, 606, 62, 16]]
    .map(([x, y, height, turn]) => place(x, y, m.daffodil(height, turn))).join('');
  return sheet(440, 640, '#fdf7dd') + m.eggClip + branch +
    hanging.map(([x, y, thread, fill, paint, other]) => line(`M${x} ${y}v${thread}`, goldDark, 1.2) +
    place(x, y + thread + 17, m.egg(fill, paint, other), 0.68)).join('') +
    shape('M0 590C110 560 320 560 440 592V640H0Z', '#b9cf9b') + m.grass(-4, 450, 596, 26, '#9dbb83', roll) +
    daffodils + place(226, 614, m.rabbit(), 0.9) +
    eggs.map(([x, y, turn, fill, paint, other]) => place(x, y, m.egg(fill, paint, other), 0.9, turn)).join('') +
    m.grass(-4, 450, 627, 15, '#7fa56c', roll);
}

/** A rectangle with half circles along its sides: so many across and so many down. */
const scalloped = (x, y, across, down, step) => {
  const bow = (dx, dy, count) => times(count, () => `a${step / 2} ${step / 2} 0 0 1 ${dx * step} ${dy * step}`).join('');
  return `M${x} ${y}${bow(1, 0, across)}${bow(0, 1, down)}${bow(-1, 0, across)}${bow(0, -1, down)}Z`;
};

function koningsdag() {
  const fills = [red, '#fffaf0', '#4a78a8'];
  const dots = times(23, (i) => times(16, (k) => dot(i * 29 + (k % 2) * 14.5, k * 29, 3, '#f6ab58')).join('')).join('');
  const bed = [[34, 62, orange], [62, 84, red], [92, 70, gold], [118, 50, orange]]
    .map(([x, height, fill]) => place(x, 428, m.tulip(height, fill))).join('');
  return sheet(640, 440, orange) + dots + shape(scalloped(40, 70, 20, 12, 28), cream) +
    ring(44, 74, 552, 328, 4, '#4a78a8', 1.4) + ring(49, 79, 542, 318, 2, red, 1) +
    bunting(-14, 4, 654, 4, 10, 17, fills, 28) + place(320, 96, m.crown(), 0.96) +
    bed + place(556, 424, m.custardSlice(), 1);
}

function verhuizing() {
  const row = [[66, 2, 'bell', c.terracotta, c.green], [60, 2, 'stairs', '#b9805c', c.blue],
    [78, 3, 'neck', c.sage, c.terracotta], [62, 2, 'spout', c.ochre, c.plum], [84, 2, 'cornice', c.blue, c.terracotta],
    [64, 3, 'bell', c.plum, c.green], [76, 2, 'stairs', c.terracotta, c.blue], [60, 2, 'neck', '#d9b58a', c.green],
    [70, 3, 'spout', '#7f9fa6', c.terracotta], [64, 2, 'bell', c.ochre, c.blue], [66, 2, 'stairs', c.sage, c.plum]];
  let left = -8;
  const houses = row.map(([width, ...house]) => {
    const drawn = place(left, 400, m.canalHouse(width, ...house), 0.88);
    left += width * 0.88;
    return drawn;
  }).join('');
  const plant = [-60, -20, 20, 60, 0].map((turn) => leaf(0, -20, 24, turn - 90, c.green)).join('') +
    shape('M-10 -20H10L7 0H-7Z', c.terracotta);
  return sheet(640, 440, '#e2eef0') + m.cloud(84, 76, 0.85) + m.cloud(470, 46, 0.56) + m.cloud(600, 212, 0.5) + houses +
    block(0, 400, 640, 40, '#d8c9b2') + block(0, 400, 640, 5, '#efe4cf') +
    times(22, (i) => line(`M${i * 30 + 6} 416h16M${i * 30 - 8} 429h16`, '#c2b095', 1.4)).join('') +
    place(186, 430, m.cargoBike(), 0.9) +
    place(434, 430, m.removalBox(56, 38, heart(0, 2, 0.5, c.terracotta))) + place(482, 430, m.removalBox(36, 26)) +
    place(428, 392, m.removalBox(40, 26)) + place(516, 430, plant, 0.9) +
    line('M592 0V30', c.ink, 1.4, 0.7) + place(592, 20, m.key(), 0.94);
}

function bedankt() {
  const edge = `M172 0${times(16, () => 'a14 13.75 0 0 1 0 27.5').join('')}`;
  const stripes = times(7, (i) => block(8 + i * 30, 0, 14, 440, '#cbd8c2')).join('');
  const lamp = line('M88 0V40', c.ink, 1.8) + shape('M54 78C54 50 72 38 88 38C104 38 122 50 122 78Z', c.ochre) +
    shape('M100 40C112 48 122 58 122 78H104C106 62 106 50 100 40Z', goldDark, 0.5) + oval(88, 79, 34, 5, '#fdf0c8');
  const posy = sprig([[58, 252], [30, 226], [16, 172]], 8, 26, '#6f9a63') +
    sprig([[62, 252], [92, 226], [108, 170]], 8, 26, c.green) + sprig([[60, 252], [48, 200], [58, 136]], 8, 24, c.green) +
    flower(36, 212, 25, c.terracotta, 8) + flower(84, 214, 23, c.plum, 7) + flower(60, 180, 21, c.ochre, 7, c.terracotta) +
    flower(60, 232, 18, cream, 7);
  const vase = shape('M48 250H74C74 268 88 280 88 306C88 326 78 338 72 338H50C44 338 34 326 34 306C34 280 48 268 48 250Z',
    '#f6ead6') + shape('M66 250H74C74 268 88 280 88 306C88 326 78 338 72 338H62C78 316 74 284 66 250Z', '#c9b08c', 0.5) +
    line('M35 300Q61 309 87 300M35 308Q61 317 87 308', c.blue, 2.6);
  const drawer = (y) => block(18, y, 132, 34, '#b97d5c', 3) + ring(18, y, 132, 34, 3, '#9c6346', 1.4) + dot(84, y + 17, 5, gold);
  const sideboard = block(0, 346, 200, 94, '#c98d6b') + drawer(360) + drawer(402) + block(-4, 336, 200, 12, '#dda888', 3) +
    block(-4, 345, 200, 3, '#9c6346');
  const corner = sprig([[596, 396], [560, 404], [520, 398]], 7, 20, c.sage) +
    sprig([[598, 394], [606, 360], [600, 322]], 7, 20, c.sage) + flower(592, 390, 17, c.terracotta, 8) +
    flower(568, 398, 10, c.ochre, 6, c.terracotta) + flower(601, 364, 11, c.plum, 6);
  return sheet(640, 440, cream) + `<clipPath id="kolom"><path d="${edge}H0V0Z"/></clipPath>` +
    `<g clip-path="url(#kolom)">${sheet(200, 440, '#bccdb2')}${stripes}${sideboard}</g>` + line(edge, c.green, 2.4) +
    lamp + posy + vase + place(132, 337, m.cup(c.terracotta), 0.86) + place(130, 298, m.steam(), 0.9) +
    ring(208, 24, 408, 392, 10, c.sage, 3) + ring(215, 31, 394, 378, 6, c.ochre, 1) + corner;
}

function condoleance() {
  const [grey, pale] = ['#a9b5a6', '#c4cdbf'];
  const branch = sprig([[446, 646], [366, 470], [404, 268]], 15, 36, grey) +
    sprig([[409, 538], [384, 486], [328, 470]], 7, 28, pale) + sprig([[396, 464], [384, 402], [342, 376]], 6, 26, pale);
  return sheet(440, 640, '#eef0e9') + block(22, 22, 396, 596, '#fafaf5', 2) + ring(22, 22, 396, 596, 2, pale, 1.6) + branch +
    place(96, 96, m.flyingBird(0.9, grey)) + place(140, 76, m.flyingBird(0.6, grey)) + place(150, 112, m.flyingBird(0.5, pale));
}

function school() {
  const roll = dice(53);
  const torn = times(41, (i) => [556 - i * 13, 402 + roll() * 7]);
  const sheetOf = (dx, dy) =>
    `M${36 + dx} ${26 + dy}H${556 + dx}${torn.map(([x, y]) => `L${x + dx} ${(y + dy).toFixed(1)}`).join('')}Z`;
  const rules = times(10, (i) => line(`M40 ${84 + i * 31}H552`, '#d3e2e8', 1.4)).join('');
  const holes = times(12, (i) => dot(54, 48 + i * 30.5, 5.5, '#4f869c') +
    line(`M54 ${48 + i * 30.5}C38 ${42 + i * 30.5} 28 ${44 + i * 30.5} 26 ${50 + i * 30.5}`, '#e4e6e2', 3)).join('');
  const chalk = line('M590 34v20M580 44h20M604 86l16 16M620 86l-16 16M580 132h20M580 141h20', '#d5e8ee', 2.6, 0.75);
  return sheet(640, 440, '#5f94aa') + times(24, (i) => line(`M${i * 28} 0V440`, '#6da0b4', 1)).join('') +
    times(16, (i) => line(`M0 ${i * 28}H640`, '#6da0b4', 1)).join('') + chalk + shape(sheetOf(6, 7), '#3f6f83', 0.5) +
    shape(sheetOf(0, 0), cream) + rules + line('M84 26V402', '#eeb5a2', 1.4) + holes +
    place(584, 318, m.pencil(150, c.ochre), 1, -94) + place(606, 318, m.pencil(176, c.terracotta), 1, -84) +
    place(570, 318, m.pencil(110, c.sage), 1, -98) +
    place(578, 424, m.schoolBag(c.terracotta), 1) + place(500, 424, m.apple(), 0.9);
}

function valentijn() {
  const small = times(13, (i) => [18 + (i % 2) * 4, 422 - (i % 2) * 4].map((x, k) =>
    heart(x, 84 + i * 33 + k * 14, i % 2 ? 0.42 : 0.62, '#f8d9cd', k ? 12 : -12)).join('')).join('');
  const at = sagging(-12, 452, 8, 16);
  const hung = times(11, (i) => {
    const [x, y] = at((i + 0.5) / 11);
    return line(`M${x} ${y}v8`, c.ink, 1.2) + heart(x, y + 24 +
      (i % 2) * 3, 0.95, [c.terracotta, c.plum, '#c65a63'][i % 3], i % 2 ? 6 : -6);
  }).join('');
  return sheet(440, 640, '#efbcab') + small + shape('M18 504L220 380L422 504V620H18Z', '#a8453f') +
    block(36, 34, 368, 560, '#e3a592', 4) + block(36, 32, 368, 560, cream, 4) + ring(46, 42, 348, 540, 2, '#efbcab', 1.4) +
    shape('M18 504L226 590L18 626Z', '#c65a4a') + shape('M422 504L214 590L422 626Z', '#c65a4a') +
    shape('M18 626L200 560Q220 550 240 560L422 626Z', c.terracotta) +
    line('M18 626L200 560Q220 550 240 560L422 626', '#e58e74', 1.6) +
    dot(221, 577, 22, '#8f3a38', 0.35) + dot(220, 575, 22, '#a8453f') + dot(220, 575, 17, '#bb5850') +
    heart(220, 578, 0.95, '#f6d3c7') + cord(-12, 452, 8, 16) + hung;
}

/** In the order of their numbers: size and drawing. */
export const frames = [
  [upright, bloemen()], [lying, feest()], [upright, winter()], [lying, heelal()],
  [upright, geboorte()], [upright, bruiloft()], [lying, sinterklaas()], [lying, kerst()],
  [upright, oudEnNieuw()], [upright, pasen()], [lying, koningsdag()], [lying, verhuizing()],
  [lying, bedankt()], [upright, condoleance()], [lying, school()], [upright, valentijn()],
];
