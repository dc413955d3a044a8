import SwiftUI

// SVG
struct Group1: View {

  static let viewBox = CGRect(x: 0.0, y: 0.0, width: 100, height: 100)

  // Nested Groups and Shapes

  struct Ellipse1: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: -2, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse2: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: -1, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.0235, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse3: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 0, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.0471, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse4: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 1, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.0706, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse5: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 2, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.0941, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse6: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 3, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.1176, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse7: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 4, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.1412, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse8: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 5, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.1647, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse9: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 6, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.1882, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse10: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 7, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.2118, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse11: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 8, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.2353, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse12: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 9, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.2588, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse13: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 10, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.2824, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse14: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 11, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.3059, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse15: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 12, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.3294, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse16: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 13, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.3529, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse17: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 14, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.3765, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse18: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 15, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.4, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse19: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 16, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.4235, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse20: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 17, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.4471, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse21: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 18, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.4706, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse22: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 19, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.4941, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse23: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 20, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.5176, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse24: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 21, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.5412, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse25: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 22, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.5647, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse26: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 23, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.5882, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse27: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 24, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.6118, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse28: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 25, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.6353, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse29: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 26, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.6588, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse30: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 27, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.6824, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse31: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 28, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.7059, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse32: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 29, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.7294, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse33: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 30, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.7529, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse34: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 31, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.7765, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse35: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 32, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.8, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse36: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 33, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.8235, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse37: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 34, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.8471, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse38: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 35, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.8706, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse39: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 36, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.8941, green: 0.0784, blue: 0.1176))
    }
  }

  struct Ellipse40: View {

    static let intrinsicSize = CGSize(width: 4, height: 6)
    static let origin        = CGPoint(x: 37, y: 2)

    var body: some View {
      Ellipse()
        .fill(Color(red: 0.9176, green: 0.0784, blue: 0.1176))
    }
  }

  var body: some View {
    GeometryReader { proxy in
      ZStack(alignment: .topLeading) {
        Ellipse1()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, -2)
          .padding(.top, 2)
        Ellipse2()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, -1)
          .padding(.top, 2)
        Ellipse3()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.top, 2)
        Ellipse4()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 1)
          .padding(.top, 2)
        Ellipse5()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 2)
          .padding(.top, 2)
        Ellipse6()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 3)
          .padding(.top, 2)
        Ellipse7()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 4)
          .padding(.top, 2)
        Ellipse8()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 5)
          .padding(.top, 2)
        Ellipse9()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 6)
          .padding(.top, 2)
        Ellipse10()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 7)
          .padding(.top, 2)
        Ellipse11()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 8)
          .padding(.top, 2)
        Ellipse12()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 9)
          .padding(.top, 2)
        Ellipse13()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 10)
          .padding(.top, 2)
        Ellipse14()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 11)
          .padding(.top, 2)
        Ellipse15()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 12)
          .padding(.top, 2)
        Ellipse16()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 13)
          .padding(.top, 2)
        Ellipse17()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 14)
          .padding(.top, 2)
        Ellipse18()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 15)
          .padding(.top, 2)
        Ellipse19()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 16)
          .padding(.top, 2)
        Ellipse20()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 17)
          .padding(.top, 2)
        Ellipse21()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 18)
          .padding(.top, 2)
        Ellipse22()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 19)
          .padding(.top, 2)
        Ellipse23()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 20)
          .padding(.top, 2)
        Ellipse24()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 21)
          .padding(.top, 2)
        Ellipse25()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 22)
          .padding(.top, 2)
        Ellipse26()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 23)
          .padding(.top, 2)
        Ellipse27()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 24)
          .padding(.top, 2)
        Ellipse28()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 25)
          .padding(.top, 2)
        Ellipse29()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 26)
          .padding(.top, 2)
        Ellipse30()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 27)
          .padding(.top, 2)
        Ellipse31()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 28)
          .padding(.top, 2)
        Ellipse32()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 29)
          .padding(.top, 2)
        Ellipse33()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 30)
          .padding(.top, 2)
        Ellipse34()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 31)
          .padding(.top, 2)
        Ellipse35()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 32)
          .padding(.top, 2)
        Ellipse36()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 33)
          .padding(.top, 2)
        Ellipse37()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 34)
          .padding(.top, 2)
        Ellipse38()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 35)
          .padding(.top, 2)
        Ellipse39()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 36)
          .padding(.top, 2)
        Ellipse40()
          .frame(width: 4, height: 6, alignment: .topLeading)
          .padding(.leading, 37)
          .padding(.top, 2)
        Text("Hello world")
          .foregroundColor(.black)
          .padding(.leading, 3)
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 4, alignment: .bottom)
      }
      .frame(width: Self.viewBox.width, height: Self.viewBox.height,
             alignment: .topLeading)
      .scaleEffect(x: proxy.size.width  / Self.viewBox.width,
                   y: proxy.size.height / Self.viewBox.height)
      .frame(width: proxy.size.width, height: proxy.size.height)
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .frame(width  : Group1.viewBox.width,
               height : Group1.viewBox.height)
        .background(Color.clear.border(Color.green))
        .padding()
      Text("ViewBox: 0.0,0.0 100.0x100.0").padding(.bottom)
    }
  }
}
